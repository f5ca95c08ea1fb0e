// SPDX-License-Identifier: MIT
#include "gallery.h"

#include <QApplication>
#include <QDebug>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

/** Looks at the gallery as it is laid out: nothing cut, nothing on top of another. */
class TestWidgetGallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fits();
};

namespace {

QString describe(const QWidget *widget)
{
    QString text;
    QDebug(&text) << widget << "in" << widget->parent();
    return text;
}

QList<QWidget *> visibleChildren(const QWidget *parent)
{
    QList<QWidget *> result;
    for (QWidget *child : parent->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        if (child->isVisible() && !child->isWindow())
            result << child;
    return result;
}

QSize neededBy(const QWidget *widget)
{
    const auto *edit = qobject_cast<const QLineEdit *>(widget);
    if (edit)
        return edit->fontMetrics().boundingRect(edit->text()).size();
    return widget->minimumSizeHint().expandedTo(widget->minimumSize());
}

// What is cut off, squeezed or covered below a widget.
QStringList misfits(const QWidget *parent)
{
    QStringList result;
    const QList<QWidget *> children = visibleChildren(parent);
    for (const QWidget *child : children) {
        if (!parent->rect().contains(child->geometry()))
            result << QString("cut off: ") + describe(child);
        if (child->size().expandedTo(neededBy(child)) != child->size())
            result << QString("squeezed: ") + describe(child);
        for (const QWidget *other : children)
            if (other != child && other->geometry().intersects(child->geometry()))
                result << QString("covered: ") + describe(child);
        if (!qobject_cast<const QLineEdit *>(child))
            result << misfits(child);
    }
    return result;
}

} // namespace

void TestWidgetGallery::fits()
{
    for (const int points : {7, 10, 20}) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
        for (const bool rightToLeft : {false, true}) {
            Gallery gallery;
            gallery.setRightToLeft(rightToLeft);
            gallery.show();
            QCoreApplication::processEvents();
            QVERIFY(gallery.findChildren<QLabel *>().count() > 30);
            const QStringList found = misfits(&gallery);
            QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
        }
    }
}

QTEST_MAIN(TestWidgetGallery)
#include "tst_widgetgallery.moc"
