// SPDX-License-Identifier: MIT
#include "camconfig/framespanel.h"

#include "base/formfit.h"
#include "camconfig/featuretooltip.h"
#include "camconfig/framenumbers.h"
#include "camconfig/microseconds.h"
#include "history/historycaption.h"
#include "ui_orvcamconfigmainwindow.h"
#include "widgets/numbertext.h"

#include <OrvGenParam/Array.h>

namespace OrvGui {

namespace {

QString frameRate(const QString &frameTime, const QLocale &locale)
{
    if (frameTime.isEmpty())
        return QString();
    const double microseconds = frameTime.toDouble();
    return NumberText::of(microseconds > 0 ? 1e6 / microseconds : 0.0, 2, locale);
}

QString explanation(const QString &meaning,
                    std::initializer_list<const OrvGenParam::Param *> params)
{
    const QString features = FeatureToolTip::text(params);
    return features.isEmpty() ? meaning : meaning + QStringLiteral("<br/>") + features;
}

} // namespace

FramesPanel::FramesPanel(const Ui_OrvCamConfigMainWindow &ui, QWidget *window)
    : m_ui(ui)
    , m_window(window)
    , m_history(window)
    , m_columns{{ui.lblFrameA,
                 {ui.lineEditSizeFrameA, ui.lineEditFpsFrameA, ui.lineEditFtmFrameA,
                  ui.lineEditExpFrameA}},
                {ui.lblFrameB,
                 {ui.lineEditSizeFrameB, ui.lineEditFpsFrameB, ui.lineEditFtmFrameB,
                  ui.lineEditExpFrameB}}}
{
    ui.lblFrameTime->setText(Microseconds::unit());
    ui.lblExposure->setText(Microseconds::unit());
    ui.lblTemperature->setText(tr("%1C").arg(QChar(0xB0)));
    m_history.open(ui.lblFps, CameraHistory::FrameRate, ui.lblFpsUnit->text());
    m_history.open(ui.lblFtm, CameraHistory::FrameTime, ui.lblFrameTime->text());
    m_history.open(ui.lblExp, CameraHistory::Exposure, ui.lblExposure->text());
    m_history.open(ui.lblTmp, CameraHistory::Temperature, ui.lblTemperature->text());
}

void FramesPanel::layOut(bool hasFrames)
{
    const Column &a = m_columns[CameraHistory::FrameA];
    const Column &b = m_columns[CameraHistory::FrameB];
    const int columns = hasFrames ? 1 : 2;
    b.head->setVisible(hasFrames);
    m_ui.gridLayout->setColumnStretch(4, hasFrames ? 1 : 0); // takes the remaining width
    placeWide(a.head, 0, columns);
    for (int row = 0; row < RowCount; ++row) {
        placeWide(a.fields[row], row + 1, columns);
        b.fields[row]->setVisible(hasFrames);
        limitWidth(a.fields[row], hasFrames);
        limitWidth(b.fields[row], hasFrames);
    }
    m_history.setFrames(hasFrames ? a.head->text() : QString(),
                        hasFrames ? b.head->text() : QString());
}

void FramesPanel::placeWide(QWidget *widget, int row, int columns)
{
    m_ui.gridLayout->removeWidget(widget);
    m_ui.gridLayout->addWidget(widget, row, 1, 1, columns);
}

void FramesPanel::limitWidth(QLineEdit *field, bool isLimited)
{
    const int width = FormFit::textWidth(field, QStringLiteral("xxxxxxxxxxxx"));
    FormFit::limitWidth(field, isLimited ? width : QWIDGETSIZE_MAX);
    field->setMinimumWidth(isLimited ? qMin(field->sizeHint().width(), field->maximumWidth()) : 0);
}

void FramesPanel::explain(const OrvGenParam::Array *array)
{
    const auto feature = [=](const char *name) { return array ? array->GetInt(name) : nullptr; };
    const OrvGenParam::Int *const frameTime = feature("CurrentFrameTime");
    const auto explainRow = [this](Row row, const QString &text) {
        for (const Column &column : m_columns)
            FeatureToolTip::set(column.fields[row], text);
    };
    explainRow(Size, explanation(tr("Image size"), {feature("Width"), feature("Height")}));
    explainRow(FrameRate,
               explanation(tr("Frames per second, computed from the frame time"), {frameTime}));
    explainRow(FrameTime, explanation(tr("Frame time"), {frameTime}));
    explainRow(Exposure, explanation(tr("Exposure time"), {feature("CurrentExposureTime")}));
    FeatureToolTip::set(m_ui.lineEditTemperature,
                        explanation(tr("Temperature"), {feature("CurrentTemperature")}));
}

void FramesPanel::setOld(Frame frame, bool isOld)
{
    m_columns[frame].head->setEnabled(!isOld);
    for (QLineEdit *field : m_columns[frame].fields)
        field->setEnabled(!isOld);
}

void FramesPanel::show(Frame frame, const FrameNumbers &numbers)
{
    const auto &fields = m_columns[frame].fields;
    const QString size = numbers.width + QLatin1Char('x') + numbers.height;
    fields[Size]->setText(size.size() > 1 ? size : QString());
    fields[FrameRate]->setText(frameRate(numbers.frameTime, m_window->locale()));
    fields[FrameTime]->setText(numbers.frameTime);
    fields[Exposure]->setText(numbers.exposure);
    m_history.add(CameraHistory::FrameRate, frame, frameRate(numbers.frameTime, QLocale::c()));
    m_history.add(CameraHistory::FrameTime, frame, numbers.frameTime);
    m_history.add(CameraHistory::Exposure, frame, numbers.exposure);
}

void FramesPanel::showTemperature(const QString &degrees)
{
    m_ui.lineEditTemperature->setText(degrees);
    m_history.add(CameraHistory::Temperature, CameraHistory::FrameA, degrees);
}

void FramesPanel::clear()
{
    for (QLineEdit *field : m_ui.groupBox->findChildren<QLineEdit *>())
        field->clear();
}

} // namespace OrvGui
