// SPDX-License-Identifier: MIT
#include "translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

bool install(QCoreApplication &application, const QLocale &locale, const QString &name,
             const QString &folder)
{
    auto *translator = new QTranslator(&application);
    return translator->load(locale, name, QStringLiteral("_"), folder) &&
           QCoreApplication::installTranslator(translator);
}

} // namespace

void translate(QCoreApplication &application)
{
    // Asked for one language after the other: to QTranslator a locale of "English, else German"
    // means German, as there is no file for the language that the texts are written in.
    for (const QString &name : QLocale::system().uiLanguages()) {
        const QLocale locale(name);
        if (locale.language() == QLocale::English || locale.language() == QLocale::C)
            return;
        if (!install(application, locale, QStringLiteral("orvcameraguiapi"),
                     QStringLiteral(":/translations")))
            continue;
        install(application, locale, QStringLiteral("qtbase"),
                QLibraryInfo::location(QLibraryInfo::TranslationsPath));
        return;
    }
}
