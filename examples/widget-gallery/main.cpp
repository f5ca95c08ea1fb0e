// SPDX-License-Identifier: MIT
#include "gallery.h"

#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>

int main(int argc, char *argv[])
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication app(argc, argv);

    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        Gallery::tr("Save a picture of the gallery, with its sliders popped up, and leave."),
        QStringLiteral("FILE"));
    const QCommandLineOption dark(QStringLiteral("dark"), Gallery::tr("Use a dark palette."));
    const QCommandLineOption rightToLeft(QStringLiteral("right-to-left"),
                                         Gallery::tr("Lay everything out from right to left."));
    const QCommandLineOption fontSize(QStringLiteral("font-size"), Gallery::tr("Size of the text."),
                                      QStringLiteral("POINTS"));

    QCommandLineParser parser;
    parser.setApplicationDescription(Gallery::tr("Shows the value widgets for cameras."));
    parser.addHelpOption();
    parser.addOptions({screenshot, dark, rightToLeft, fontSize});
    parser.process(app);

    if (parser.isSet(fontSize)) {
        QFont font = QApplication::font();
        font.setPointSize(qBound(4, parser.value(fontSize).toInt(), 72));
        QApplication::setFont(font);
    }

    Gallery gallery;
    gallery.setDark(parser.isSet(dark));
    gallery.setRightToLeft(parser.isSet(rightToLeft));
    gallery.show();
    if (!parser.isSet(screenshot))
        return QApplication::exec();

    QApplication::processEvents();
    if (gallery.picture().save(parser.value(screenshot)))
        return 0;
    std::fprintf(stderr, "widget-gallery: can't write %s\n", qPrintable(parser.value(screenshot)));
    return 1;
}
