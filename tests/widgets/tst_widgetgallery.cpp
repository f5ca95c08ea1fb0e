// SPDX-License-Identifier: MIT
#include "gallery.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

/** Looks at the gallery as it is laid out: nothing cut, nothing on top of another. */
class TestWidgetGallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fits_data();
    void fits();
};

namespace {

QString describe(const QWidget *widget)
{
    const QRect area = widget->geometry();
    return QString("%1 %2 in %3, %4x%5")
        .arg(QString::fromLatin1(widget->metaObject()->className()), widget->objectName(),
             QString::fromLatin1(widget->parent()->metaObject()->className()))
        .arg(area.width())
        .arg(area.height());
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
        const QSize needed = neededBy(child);
        if (!parent->rect().contains(child->geometry()))
            result << QString("cut off: ") + describe(child);
        if (child->size().expandedTo(needed) != child->size())
            result << QString("squeezed: %1 of %2x%3")
                          .arg(describe(child))
                          .arg(needed.width())
                          .arg(needed.height());
        for (const QWidget *other : children)
            if (other != child && other->geometry().intersects(child->geometry()))
                result << QString("covered: ") + describe(child);
        if (!qobject_cast<const QLineEdit *>(child))
            result << misfits(child);
    }
    return result;
}

} // namespace

void TestWidgetGallery::fits_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<bool>("rightToLeft");
    for (const int points : {7, 10, 20})
        for (const bool rightToLeft : {false, true})
            QTest::addRow("%d points%s", points, rightToLeft ? ", right to left" : "")
                << points << rightToLeft;
}

void TestWidgetGallery::fits()
{
    QFETCH(int, points);
    QFETCH(bool, rightToLeft);
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPointSize(points);
    QApplication::setFont(font);

    Gallery gallery;
    gallery.setRightToLeft(rightToLeft);
    gallery.show();
    QCoreApplication::processEvents();
    QVERIFY(gallery.findChildren<QLabel *>().count() > 30);
    const QStringList found = misfits(&gallery);
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));

    gallery.setRightToLeft(false);
    QApplication::setFont(before);
}

QTEST_MAIN(TestWidgetGallery)
#include "tst_widgetgallery.moc"
