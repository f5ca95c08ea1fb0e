// SPDX-License-Identifier: MIT
#include "orvcamconfigoutputdialog.h"

#include "orvcamconfigdialog_p.h"

namespace OrvGui {

class OrvCamConfigOutputDialogPrivate : public OrvCamConfigDialogPrivate
{
protected:
    void buildForm() override {}
    void bind() override {}
};

OrvCamConfigOutputDialog::OrvCamConfigOutputDialog(OrvCam::Device *device, QWidget *parent)
    : OrvCamConfigDialog(new OrvCamConfigOutputDialogPrivate, device, parent)
{
}

} // namespace OrvGui
