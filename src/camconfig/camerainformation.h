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

/// Fills a dialog with information about this program and the connected camera.
///
/// The dialog is a child of the given widget; nothing is read after that is destroyed.
class CameraInformation
{
    Q_DECLARE_TR_FUNCTIONS(OrvGui::CameraInformation)

public:
    explicit CameraInformation(QWidget *parent);
    ~CameraInformation();

    /// Reads the camera's information. The dialog states when there is no camera (`array` is null),
    /// and when a text is missing.
    void adjust(const FeatureReader &reader, OrvGenParam::Array *array);

    QDialog *dialog() const { return m_dialog; }

private:
    const QPointer<QDialog> m_dialog;
    const std::unique_ptr<Ui_OrvCamConfigAboutDialog> m_ui;
};

} // namespace OrvGui
