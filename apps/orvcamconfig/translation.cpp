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
    // Tries each language separately, because QTranslator takes a locale of "English, then German"
    // for German: there is no file for English, the language of the source texts.
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
