// SPDX-License-Identifier: MIT
#include "camconfig/orvcamconfigtriggerdialog.h"

#include "camconfig/boundfeatures.h"
#include "camconfig/orvcamconfigdialog_p.h"
#include "ui_orvcamconfigtriggerdialog.h"

namespace OrvGui {

class OrvCamConfigTriggerDialogPrivate : public OrvCamConfigDialogPrivate
{
protected:
    void buildForm() override { ui.setupUi(q); }
    FeatureReader::Names features() const override { return BoundFeatures::triggerDialog(); }
    void bind() override;

private:
    void clear();
    void enableChoices();
    void enableSoftwareTrigger();

    Ui_OrvCamConfigTriggerDialog ui;
};

void OrvCamConfigTriggerDialogPrivate::bind()
{
    clear();
    bindEnum("TriggerMode", ui.chBoxTriggerEnable);
    connectTo(ui.chBoxTriggerEnable, &QCheckBox::stateChanged, [this] { enableChoices(); });
    bindEnum("TriggerSource", ui.cmBoxTriggerSource);
    connectTo(ui.cmBoxTriggerSource,
              static_cast<void (QComboBox::*)(int)>(&QComboBox::currentIndexChanged),
              [this] { enableSoftwareTrigger(); });
    bindEnum("TriggerActivation", ui.cmBoxTriggerEdge);
    bindEnum("TriggerDebounce", ui.cmBoxTriggerDebounce);
    bindCommand("TriggerSoftware", ui.pushBtnSoftwareTrigger, nullptr);
    enableChoices();
}

/// The rules use the displayed values. A feature that this camera lacks must not show the previous
/// camera's value.
void OrvCamConfigTriggerDialogPrivate::clear()
{
    ui.chBoxTriggerEnable->setChecked(false);
    for (QComboBox *box : {ui.cmBoxTriggerSource, ui.cmBoxTriggerEdge, ui.cmBoxTriggerDebounce})
        box->clear();
}

void OrvCamConfigTriggerDialogPrivate::enableChoices()
{
    const bool isOn = ui.chBoxTriggerEnable->isChecked();
    ui.cmBoxTriggerSource->setEnabled(isOn);
    ui.cmBoxTriggerEdge->setEnabled(isOn);
    ui.cmBoxTriggerDebounce->setEnabled(isOn);
    enableSoftwareTrigger();
}

void OrvCamConfigTriggerDialogPrivate::enableSoftwareTrigger()
{
    ui.pushBtnSoftwareTrigger->setEnabled(ui.chBoxTriggerEnable->isChecked() &&
                                          ui.cmBoxTriggerSource->currentText() ==
                                              QLatin1String("Software"));
}

OrvCamConfigTriggerDialog::OrvCamConfigTriggerDialog(OrvCam::Device *device, QWidget *parent)
    : OrvCamConfigDialog(new OrvCamConfigTriggerDialogPrivate, device, parent)
{
}

} // namespace OrvGui
