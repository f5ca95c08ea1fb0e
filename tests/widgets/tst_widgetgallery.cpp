// SPDX-License-Identifier: MIT
#include "gallery.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QTest>

#include <algorithm>

/** Looks at the gallery as it is laid out: nothing cut, nothing on top of another. */
class TestWidgetGallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fits_data();
    void fits();
    void canBeRead_data();
    void canBeRead();
};

namespace {

QString describe(const QWidget *widget)
{
    const QRect area = widget->geometry();
    return QStringLiteral("%1 %2 in %3, %4x%5")
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
            result << QStringLiteral("cut off: ") + describe(child);
        if (child->size().expandedTo(needed) != child->size())
            result << QStringLiteral("squeezed: %1 of %2x%3")
                          .arg(describe(child))
                          .arg(needed.width())
                          .arg(needed.height());
        for (const QWidget *other : children)
            if (other != child && other->geometry().intersects(child->geometry()))
                result << QStringLiteral("covered: ") + describe(child);
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

void TestWidgetGallery::canBeRead_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

// In each widget there are pixels far enough from the background to be seen.
void TestWidgetGallery::canBeRead()
{
    QFETCH(bool, dark);
    Gallery gallery;
    gallery.setDark(dark);
    gallery.show();
    QCoreApplication::processEvents();
    const QImage picture = gallery.picture().toImage();
    QCOMPARE(picture.size(), gallery.size() * gallery.devicePixelRatio());
    QCOMPARE(qGray(picture.pixel(1, 1)) < 100, dark);
    for (const QWidget *widget : gallery.findChildren<QWidget *>()) {
        const bool text =
            qobject_cast<const QLabel *>(widget) || qobject_cast<const QLineEdit *>(widget);
        if (!text || !widget->isVisible() || widget->window() != &gallery)
            continue;
        const QPoint corner = widget->mapTo(&gallery, QPoint(0, 0)) * picture.devicePixelRatio();
        const QImage part =
            picture.copy(QRect(corner, widget->size() * picture.devicePixelRatio()));
        QVector<int> greys;
        for (int y = 0; y < part.height(); ++y)
            for (int x = 0; x < part.width(); ++x)
                greys << qGray(part.pixel(x, y));
        const auto ends = std::minmax_element(greys.cbegin(), greys.cend());
        QVERIFY2(*ends.second - *ends.first > 120, describe(widget).toUtf8());
    }
    gallery.setDark(false);
}

QTEST_MAIN(TestWidgetGallery)
#include "tst_widgetgallery.moc"
