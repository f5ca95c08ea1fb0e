// SPDX-License-Identifier: MIT
#include "history/camerahistory.h"

#include "history/historycaption.h"
#include "history/historywindow.h"

#include <QDateTime>

#include <cmath>
#include <limits>

namespace OrvGui {

CameraHistory::CameraHistory(QWidget *parent) : m_parent(parent) {}

void CameraHistory::open(HistoryCaption *caption, Quantity quantity, const QString &unit)
{
    QObject::connect(caption, &HistoryCaption::clicked, caption,
                     [=] { show(quantity, caption->text(), unit); });
}

void CameraHistory::setFrames(const QString &a, const QString &b)
{
    m_frames[FrameA] = a;
    m_frames[FrameB] = b;
    for (int quantity = 0; quantity < QuantityCount; ++quantity)
        setSeries(static_cast<Quantity>(quantity));
}

void CameraHistory::add(Quantity quantity, Frame frame, const QString &number)
{
    bool isNumber = false;
    const double value = number.toDouble(&isNumber);
    const bool canBeDrawn = isNumber && std::isfinite(value);
    m_rings[quantity][frame].add(QDateTime::currentMSecsSinceEpoch(),
                                 canBeDrawn ? value : std::numeric_limits<double>::quiet_NaN());
    if (m_windows[quantity])
        m_windows[quantity]->refresh();
}

void CameraHistory::clear()
{
    for (auto &frames : m_rings) {
        for (SampleRing &ring : frames)
            ring.clear();
    }
    for (const QPointer<HistoryWindow> &window : m_windows) {
        if (window)
            window->refresh();
    }
}

void CameraHistory::closeWindows()
{
    for (const QPointer<HistoryWindow> &window : m_windows) {
        if (window)
            window->close();
    }
}

void CameraHistory::show(Quantity quantity, const QString &name, const QString &unit)
{
    QPointer<HistoryWindow> &window = m_windows[quantity];
    if (!window) {
        window = new HistoryWindow(name, unit, quantity == FrameRate ? 2 : 0, m_parent);
        window->setObjectName(QStringLiteral("history%1").arg(quantity));
        setSeries(quantity);
    }
    window->show();
    window->raise();
    window->activateWindow();
}

void CameraHistory::setSeries(Quantity quantity)
{
    if (!m_windows[quantity])
        return;
    const auto &rings = m_rings[quantity];
    HistoryWindow::Series series;
    if (quantity == Temperature || m_frames[FrameB].isNull())
        series.append({QString(), &rings[FrameA]});
    else
        series = {{m_frames[FrameA], &rings[FrameA]}, {m_frames[FrameB], &rings[FrameB]}};
    m_windows[quantity]->setSeries(series);
}

} // namespace OrvGui
