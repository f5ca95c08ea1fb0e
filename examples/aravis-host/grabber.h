// SPDX-License-Identifier: MIT
#pragma once

#include <string>

typedef struct _ArvCamera ArvCamera;
typedef struct _ArvDevice ArvDevice;
typedef struct _ArvStream ArvStream;

/// Takes images from a camera with Aravis and counts them; a real program would process them here.
class Grabber
{
public:
    /// Opens the camera with that identifier and starts acquisition. Throws `std::runtime_error`.
    explicit Grabber(const std::string &cameraId);

    /// Stops acquisition.
    ~Grabber();
    Grabber(const Grabber &) = delete;
    Grabber &operator=(const Grabber &) = delete;

    ArvDevice *device() const;

    /// Takes the images since the last call; returns the number of all images so far.
    int takeImages();

private:
    void start();

    ArvCamera *m_camera = nullptr;
    ArvStream *m_stream = nullptr;
    int m_count = 0;
};
