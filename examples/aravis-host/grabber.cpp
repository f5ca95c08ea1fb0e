// SPDX-License-Identifier: MIT
#include "grabber.h"

#include <arv.h>

#include <stdexcept>

namespace {

constexpr int bufferCount = 8;

void throwIfFailed(GError *error)
{
    if (!error)
        return;
    const std::string text = error->message;
    g_error_free(error);
    throw std::runtime_error(text);
}

} // namespace

Grabber::Grabber(const std::string &cameraId)
{
    GError *error = nullptr;
    m_camera = arv_camera_new(cameraId.c_str(), &error);
    throwIfFailed(error);
    try {
        start();
    } catch (...) {
        g_clear_object(&m_stream);
        g_clear_object(&m_camera);
        throw;
    }
}

void Grabber::start()
{
    GError *error = nullptr;
    m_stream = arv_camera_create_stream(m_camera, nullptr, nullptr, &error);
    throwIfFailed(error);
    const std::size_t size = arv_camera_get_payload(m_camera, &error);
    throwIfFailed(error);
    for (int i = 0; i < bufferCount; ++i)
        arv_stream_push_buffer(m_stream, arv_buffer_new(size, nullptr));
    arv_camera_start_acquisition(m_camera, &error);
    throwIfFailed(error);
}

Grabber::~Grabber()
{
    arv_camera_stop_acquisition(m_camera, nullptr);
    g_object_unref(m_stream);
    g_object_unref(m_camera);
}

ArvDevice *Grabber::device() const
{
    return arv_camera_get_device(m_camera);
}

int Grabber::takeImages()
{
    while (ArvBuffer *buffer = arv_stream_try_pop_buffer(m_stream)) {
        if (arv_buffer_get_status(buffer) == ARV_BUFFER_STATUS_SUCCESS)
            ++m_count;
        arv_stream_push_buffer(m_stream, buffer);
    }
    return m_count;
}
