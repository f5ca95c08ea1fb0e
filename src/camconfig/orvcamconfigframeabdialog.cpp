// SPDX-License-Identifier: MIT
#include "orvcamconfigframeabdialog.h"

#include "orvcamconfigdialog_p.h"

namespace OrvGui {

class OrvCamConfigFrameABDialogPrivate : public OrvCamConfigDialogPrivate
{
protected:
    void buildForm() override {}
    void bind() override {}
};

OrvCamConfigFrameABDialog::OrvCamConfigFrameABDialog(OrvCam::Device *device, QWidget *parent)
    : OrvCamConfigDialog(new OrvCamConfigFrameABDialogPrivate, device, parent)
{
}

} // namespace OrvGui
