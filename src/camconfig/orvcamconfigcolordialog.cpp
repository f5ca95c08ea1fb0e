// SPDX-License-Identifier: MIT
#include "orvcamconfigcolordialog.h"

#include "orvcamconfigdialog_p.h"

namespace OrvGui {

class OrvCamConfigColorDialogPrivate : public OrvCamConfigDialogPrivate
{
protected:
    void buildForm() override {}
    void bind() override {}
};

OrvCamConfigColorDialog::OrvCamConfigColorDialog(OrvCam::Device *device, QWidget *parent)
    : OrvCamConfigDialog(new OrvCamConfigColorDialogPrivate, device, parent)
{
}

} // namespace OrvGui
