// SPDX-License-Identifier: MIT
#include "orvcamconfigstrobedialog.h"

#include "orvcamconfigdialog_p.h"

namespace OrvGui {

class OrvCamConfigStrobeDialogPrivate : public OrvCamConfigDialogPrivate
{
protected:
    void buildForm() override {}
    void bind() override {}
};

OrvCamConfigStrobeDialog::OrvCamConfigStrobeDialog(OrvCam::Device *device, QWidget *parent)
    : OrvCamConfigDialog(new OrvCamConfigStrobeDialogPrivate, device, parent)
{
}

} // namespace OrvGui
