// SPDX-License-Identifier: MIT
#include "api/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include <memory>
#include <vector>

namespace OrvGui {

namespace {

using Translators = std::vector<std::unique_ptr<QTranslator>>;

QString folderOfQt()
{
#if QT_VERSION >= 0x060000
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

/// True when translations into the language were found, or when it is the language of the source
/// texts.
bool find(const QLocale &locale, Translators &found)
{
    if (locale.language() == QLocale::English || locale.language() == QLocale::C)
        return true;
    auto own = std::make_unique<QTranslator>();
    if (!own->load(locale, QStringLiteral("orvcameraguiapi"), QStringLiteral("_"),
                   QStringLiteral(":/translations")))
        return false;
    found.push_back(std::move(own));
    auto qt = std::make_unique<QTranslator>();
    if (qt->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), folderOfQt()))
        found.push_back(std::move(qt));
    return true;
}

/// Tries each language separately, because QTranslator takes a locale of "English, then German" for
/// German.
bool findForSystem(Translators &found)
{
    const QStringList names = QLocale::system().uiLanguages();
    for (const QString &name : names) {
        if (find(QLocale(name), found))
            return true;
    }
    return false;
}

/// An unknown name gives QLocale's "C", which is English.
bool findByName(const QString &name, Translators &found)
{
    const QLocale locale(name);
    const bool isKnown = locale.language() != QLocale::C || name == QLatin1String("C");
    return isKnown && find(locale, found);
}

} // namespace

bool setLanguage(const QString &language)
{
    Translators found;
    if (!(language.isEmpty() ? findForSystem(found) : findByName(language, found)))
        return false;
    // QPointer, because the application owns them.
    static std::vector<QPointer<QTranslator>> installed;
    for (QTranslator *translator : installed)
        delete translator;
    installed.clear();
    for (auto &translator : found) {
        translator->setParent(QCoreApplication::instance());
        QCoreApplication::installTranslator(translator.get());
        installed.push_back(translator.release());
    }
    return true;
}

} // namespace OrvGui
