// SPDX-License-Identifier: MIT
#pragma once

#include <string>

typedef struct _ArvCamera ArvCamera;
typedef struct _ArvDevice ArvDevice;
typedef struct _ArvStream ArvStream;

/// Takes images from a camera with Aravis, and only counts them: what happens to them is up to you.
class Grabber
{
public:
    /// Opens the camera of that identifier and starts it. Throws `std::runtime_error`.
    explicit Grabber(const std::string &cameraId);

    /// Stops the camera.
    ~Grabber();
    Grabber(const Grabber &) = delete;
    Grabber &operator=(const Grabber &) = delete;

    ArvDevice *device() const;

    /// Takes what has come since the last call; returns how many images there have been so far.
    int takeImages();

private:
    void start();

    ArvCamera *m_camera = nullptr;
    ArvStream *m_stream = nullptr;
    int m_count = 0;
};
