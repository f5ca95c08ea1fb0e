// SPDX-License-Identifier: MIT
#pragma once

#include "nodemap.h"

#include <cameraapi/cameraconnection.h>

#include <atomic>
#include <memory>

typedef struct _GError GError;

namespace OrvAravis {

/// An open device of Aravis with its node map. Notices when Aravis says that control is lost.
class ArvConnection : public OrvCam::CameraConnection
{
public:
    /// Takes over the caller's reference. Throws what `NodeMap::open` throws.
    explicit ArvConnection(ArvDevice *device);
    ~ArvConnection() override;
    ArvConnection(const ArvConnection &) = delete;
    ArvConnection &operator=(const ArvConnection &) = delete;

    GenApi::INodeMap &nodeMap() override { return *m_nodeMap; }
    bool isAlive() final;

protected:
    ArvDevice *device() const { return m_device.get(); }

    /// Asks the camera, when Aravis has nothing to complain about.
    virtual bool answers() { return true; }

private:
    struct Unref
    {
        Unref() : isInBackground(false) {}
        void operator()(ArvDevice *device) const;

        /// Aravis says goodbye to a camera, and waits for seconds when that does not answer.
        bool isInBackground;
    };

    std::unique_ptr<ArvDevice, Unref> m_device;
    const std::unique_ptr<NodeMap> m_nodeMap;
    std::shared_ptr<std::atomic<bool>> m_isControlLost; ///< shared with the signal's closure
    unsigned long m_signal = 0;
};

/// The `OrvCam::ErrorCode` for a failure to open a device. Frees the error.
int32_t codeOfOpenError(GError *error);

} // namespace OrvAravis
