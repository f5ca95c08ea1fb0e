// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDialog>
#include <QPointer>

#include <memory>

class Ui_OrvCamConfigAboutDialog;

namespace OrvGenParam {
class Array;
}

namespace OrvGui {

class FeatureReader;

/// Fills the dialog that says what this program is, and who the connected camera is.
///
/// The dialog is a child of the widget it is made for; nothing more happens when that is gone.
class CameraInformation
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::CameraInformation)

public:
    explicit CameraInformation(QWidget *parent);
    ~CameraInformation();

    /// Reads what the camera says of itself; without a camera, when `array` is null, or where it
    /// says nothing, that is what the dialog says.
    void adjust(const FeatureReader &reader, OrvGenParam::Array *array);

    QDialog *dialog() const { return m_dialog; }

private:
    const QPointer<QDialog> m_dialog;
    const std::unique_ptr<Ui_OrvCamConfigAboutDialog> m_ui;
};

} // namespace OrvGui
