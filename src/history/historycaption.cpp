// SPDX-License-Identifier: MIT
#include "history/historycaption.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QToolTip>

namespace OrvGui {

namespace {

/// Adds a press action for screen readers, which a label lacks.
class CaptionInterface : public QAccessibleWidget
{
public:
    explicit CaptionInterface(HistoryCaption *caption)
        : QAccessibleWidget(caption, QAccessible::Button), m_caption(caption)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_caption->text() : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction())
            m_caption->click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    HistoryCaption *const m_caption;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *caption = qobject_cast<HistoryCaption *>(object);
    return caption ? new CaptionInterface(caption) : nullptr;
}

/// Removed when the library is unloaded.
struct Factory
{
    Factory() { QAccessible::installFactory(makeInterface); }
    ~Factory() { QAccessible::removeFactory(makeInterface); }
};

} // namespace

HistoryCaption::HistoryCaption(QWidget *parent) : QLabel(parent)
{
    static const Factory factory;
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover); // repaints it
    setCursor(Qt::PointingHandCursor);
    setAccessibleDescription(tr("Click for the last ten minutes"));
}

void HistoryCaption::click()
{
    if (isEnabled())
        emit clicked();
}

/// Adds a line to the tool tip that describes the number.
bool HistoryCaption::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    QStringList lines{toolTip(), tr("Click for the last ten minutes").toHtmlEscaped()};
    lines.removeAll(QString());
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       QStringLiteral("<qt>%1</qt>").arg(lines.join(QStringLiteral("<br/>"))),
                       this);
    return true;
}

void HistoryCaption::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    QStylePainter painter(this);
    if (underMouse() && isEnabled()) {
        const QRect area =
            style()->itemTextRect(fontMetrics(), contentsRect(), int(alignment()), true, text());
        painter.setPen(palette().color(foregroundRole()));
        painter.drawLine(area.bottomLeft(), area.bottomRight());
    }
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void HistoryCaption::mousePressEvent(QMouseEvent *event)
{
    m_isPressed = event->button() == Qt::LeftButton;
    event->setAccepted(m_isPressed);
}

void HistoryCaption::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_isPressed || event->button() != Qt::LeftButton)
        return QLabel::mouseReleaseEvent(event);
    m_isPressed = false;
    if (rect().contains(event->pos()))
        click();
}

void HistoryCaption::keyPressEvent(QKeyEvent *event)
{
    const bool isClick = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                         event->key() == Qt::Key_Enter;
    if (!isClick)
        return QLabel::keyPressEvent(event);
    if (!event->isAutoRepeat())
        click();
}

} // namespace OrvGui
