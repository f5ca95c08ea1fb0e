// SPDX-License-Identifier: MIT
#include "looks.h"

#include <base/readablecolors.h>

#include <QtWidgets>

#include <algorithm>

namespace Looks {

namespace {

constexpr double leastContrast = 4.5;

// The blank edge of a glyph, as a share of the text's height.
const qreal tolerance = 0.12;

struct PaintedText
{
    QString text;
    QRectF ink; // in the widget's coordinates
    QRectF clip;
    QColor color;
};

class Recorder : public QPaintEngine
{
public:
    explicit Recorder(const QWidget &widget) : QPaintEngine(AllFeatures), m_rect(widget.rect()) {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    Type type() const override { return User; }

    void drawTextItem(const QPointF &base, const QTextItem &item) override
    {
        const QFontMetricsF metrics(item.font());
        const QString text = item.text();
        if (text.trimmed().isEmpty())
            return;
        const QRectF height = metrics.tightBoundingRect(text);
        const qreal blanks =
            metrics.size(0, text).width() - metrics.size(0, text.trimmed()).width();
        QRectF ink(base.x(), base.y() + height.top(), item.width() - blanks, height.height());
        const qreal bearing = metrics.rightBearing(text.trimmed().at(text.trimmed().size() - 1));
        ink.setRight(ink.right() - std::max(qreal(0), bearing));
        const QTransform transform = painter()->combinedTransform();
        QRectF clip = m_rect;
        if (painter()->hasClipping())
            clip &= transform.mapRect(painter()->clipBoundingRect());
        texts.append({text, transform.mapRect(ink), clip, painter()->pen().color()});
    }

    QVector<PaintedText> texts;

private:
    const QRectF m_rect;
};

/// Has the size of the widget, so that the widget paints the same as on the screen.
class RecordingDevice : public QImage
{
public:
    explicit RecordingDevice(const QWidget &widget)
        : QImage(widget.size().expandedTo({1, 1}), Format_RGB32), m_recorder(widget)
    {
    }

    QPaintEngine *paintEngine() const override { return &m_recorder; }
    const QVector<PaintedText> &texts() const { return m_recorder.texts; }

private:
    mutable Recorder m_recorder;
};

QColor over(const QColor &background, const QColor &text)
{
    const auto mix = [&](int below, int above) {
        return below + (above - below) * text.alpha() / 255;
    };
    return QColor(mix(background.red(), text.red()), mix(background.green(), text.green()),
                  mix(background.blue(), text.blue()));
}

/// The most frequent colour on the edge of the rectangle; pixels inside may belong to the text.
QColor colorAround(const QImage &picture, const QRect &rect)
{
    QHash<QRgb, int> counts;
    const auto count = [&](int x, int y) {
        if (picture.rect().contains(x, y))
            ++counts[picture.pixel(x, y)];
    };
    for (int x = rect.left(); x <= rect.right(); ++x) {
        count(x, rect.top());
        count(x, rect.bottom());
    }
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        count(rect.left(), y);
        count(rect.right(), y);
    }
    const auto isRarer = [](int one, int other) { return one < other; };
    return QColor(std::max_element(counts.cbegin(), counts.cend(), isRarer).key());
}

bool isViewport(const QWidget *widget)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget->parentWidget());
    return area && area->viewport() == widget;
}

const QAbstractItemView *viewOf(const QWidget &viewport)
{
    return isViewport(&viewport) ? qobject_cast<const QAbstractItemView *>(viewport.parentWidget())
                                 : nullptr;
}

/// The part of the widget that its parents do not hide, up to the nearest scroll area.
QRect openPart(const QWidget &widget)
{
    QRect rect = widget.rect();
    const QWidget *inner = &widget;
    QPoint offset;
    while (!inner->isWindow() && !isViewport(inner->parentWidget())) {
        offset += inner->pos();
        inner = inner->parentWidget();
        rect &= inner->rect().translated(-offset);
    }
    return rect;
}

bool isDisabled(const QWidget &widget, const QPoint &place)
{
    if (!widget.isEnabled())
        return true;
    const auto isOff = [](const QAction *action) { return action && !action->isEnabled(); };
    if (const auto *menu = qobject_cast<const QMenu *>(&widget))
        return isOff(menu->actionAt(place));
    if (const auto *bar = qobject_cast<const QMenuBar *>(&widget))
        return isOff(bar->actionAt(place));
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
        return !tabs->isTabEnabled(tabs->tabAt(place));
    if (const auto *view = viewOf(widget)) {
        const QModelIndex index = view->indexAt(place);
        return index.isValid() && !(index.flags() & Qt::ItemIsEnabled);
    }
    return false;
}

/// The text that a widget is given to show; empty if it has several texts.
QString ownText(const QWidget &widget)
{
    for (const char *property : {"text", "title", "currentText"}) {
        const QString text = widget.property(property).toString();
        if (!text.isEmpty())
            return text;
    }
    return QString();
}

QString quoted(const QWidget &widget, const QString &piece)
{
    const QString own = ownText(widget);
    return QString::fromUtf8("\u201c%1\u201d").arg(own.isEmpty() ? piece : own);
}

QString textOf(const QRectF &rect)
{
    QString text;
    QDebug(&text).noquote().nospace() << rect;
    return text;
}

class Inspection
{
public:
    explicit Inspection(QWidget &window) : m_window(window), m_picture(pictureOf(window)) {}

    QVector<Fault> run()
    {
        checkScreen();
        check(m_window);
        for (QWidget *widget : m_window.findChildren<QWidget *>()) {
            if (widget->window() == &m_window && widget->isVisible())
                check(*widget);
        }
        return m_faults;
    }

private:
    void add(Fault::Kind kind, const QWidget &widget, const QString &detail)
    {
        const Fault fault{kind, nameOf(widget), detail};
        for (const Fault &known : m_faults) {
            if (known.kind == kind && known.widget == fault.widget && known.detail == detail)
                return;
        }
        m_faults.append(fault);
    }

    void checkScreen()
    {
        const QRect screen = m_window.windowHandle()->screen()->availableGeometry();
        const QRect frame = m_window.frameGeometry();
        if (!screen.contains(frame))
            add(Fault::OffScreen, m_window,
                QString("%1 on a screen of %2").arg(textOf(frame), textOf(screen)));
    }

    void check(QWidget &widget)
    {
        RecordingDevice device(widget);
        widget.render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
        for (const PaintedText &text : device.texts()) {
            PaintedText whole = text;
            whole.clip = clipOf(text, device.texts());
            checkExtent(widget, whole);
            checkContrast(widget, text);
        }
        checkPlace(widget);
    }

    /// A selected text is painted twice: with the clip region of the selection and with that of the
    /// rest.
    static QRectF clipOf(const PaintedText &text, const QVector<PaintedText> &all)
    {
        QRectF clip = text.clip;
        for (const PaintedText &other : all) {
            if (other.text == text.text && other.ink == text.ink)
                clip |= other.clip;
        }
        return clip;
    }

    void checkPlace(const QWidget &widget)
    {
        const QWidget *parent = widget.parentWidget();
        if (widget.isWindow() || isViewport(parent) ||
            qobject_cast<const QSplitterHandle *>(&widget))
            return;
        if (!parent->rect().contains(widget.geometry()))
            add(Fault::Squeezed, widget,
                QString("out of %1, which is %2").arg(nameOf(*parent), textOf(parent->rect())));
    }

    // A scroll area can be scrolled, so its contents may extend beyond the viewport. A text that
    // does not fit into a cell is elided, in some styles elsewhere, too.
    void checkExtent(const QWidget &widget, const PaintedText &painted)
    {
        const QChar ellipsis(0x2026);
        const QString text = quoted(widget, painted.text);
        const bool isElided = painted.text.size() > 1 && painted.text.contains(ellipsis) &&
                              !ownText(widget).contains(ellipsis);
        const auto *view = viewOf(widget);
        const bool isHeader = qobject_cast<const QHeaderView *>(view);
        if (isElided)
            return add(view && !isHeader ? Fault::CutCell : Fault::Cut, widget,
                       text + " is elided");
        if (isViewport(&widget) && !isHeader)
            return;
        const QRectF room = painted.clip & QRectF(openPart(widget));
        const qreal edge = std::max(1.0, tolerance * painted.ink.height());
        const QRectF least = painted.ink.adjusted(edge, edge, -edge, -edge);
        if (room.contains(least) || !least.isValid())
            return;
        add(Fault::Cut, widget,
            QString("%1 lies at %2, its room is %3").arg(text, textOf(painted.ink), textOf(room)));
    }

    void checkContrast(const QWidget &widget, const PaintedText &painted)
    {
        const QRectF shown = widget.visibleRegion().boundingRect();
        const QRectF visible = painted.ink & painted.clip & shown;
        if (visible.width() < 2 || visible.height() < 2)
            return;
        if (isDisabled(widget, painted.ink.center().toPoint()))
            return;
        const qreal scale = m_picture.devicePixelRatioF();
        const QPointF corner = widget.mapTo(&m_window, QPoint());
        const QRectF inPicture(QPointF(visible.topLeft() + corner) * scale, visible.size() * scale);
        const QColor background =
            colorAround(m_picture, inPicture.toAlignedRect().adjusted(-1, -1, 1, 1));
        const QColor color = over(background, painted.color);
        const double ratio = OrvGui::contrast(color, background);
        if (ratio < leastContrast)
            add(Fault::Pale, widget,
                QString("%1 in %2 on %3 has a contrast of %4")
                    .arg(quoted(widget, painted.text), color.name(), background.name())
                    .arg(ratio, 0, 'f', 2));
    }

    QWidget &m_window;
    const QImage m_picture;
    QVector<Fault> m_faults;
};

} // namespace

QString Fault::toString() const
{
    static const char *const kinds[] = {"pale", "cut", "cut cell", "squeezed", "off the screen"};
    return QString("%1: %2: %3").arg(QLatin1String(kinds[kind]), widget, detail);
}

QVector<Fault> faultsOf(QWidget &window)
{
    return Inspection(window).run();
}

QImage pictureOf(QWidget &window)
{
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QString nameOf(const QWidget &widget)
{
    const QString name = widget.objectName();
    const QString type = QString::fromLatin1(widget.metaObject()->className());
    if (!name.isEmpty() && !name.startsWith("qt_"))
        return QString("%1 (%2)").arg(name, type);
    const QString own = name.isEmpty() ? type : QString("%1 (%2)").arg(name, type);
    return widget.parentWidget() ? own + " in " + nameOf(*widget.parentWidget()) : own;
}

} // namespace Looks
