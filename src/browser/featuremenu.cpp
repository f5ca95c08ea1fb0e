// SPDX-License-Identifier: MIT
#include "browser/featuremenu.h"

#include "base/cameratext.h"
#include "base/featuremetatype.h"
#include "base/genicamstring.h"
#include "base/selectors.h"
#include "browser/browsermodel.h"
#include "browser/selectorplace.h"
#include "genparamtree/genparamtreemodel.h"

#include <GenApi/GenApi.h>

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace OrvGui {

namespace {

/// A table with more columns would be too large.
constexpr int maxColumns = 30;

QString nameOf(GenApi::IValue *feature)
{
    return fromUtf8(feature->GetNode()->GetName(false));
}

/// Escapes ampersands, which mark mnemonics in menus.
QString titleOf(GenApi::IValue *feature)
{
    const GenICam::gcstring displayName = feature->GetNode()->GetDisplayName();
    const QString title = displayName.empty() ? nameOf(feature) : fromUtf8(displayName);
    return cameraText(title, LongestName).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

GenApi::EInterfaceType typeOf(GenApi::IValue *feature)
{
    return feature->GetNode()->GetPrincipalInterfaceType();
}

bool isForUsers(GenApi::IValue *feature)
{
    return feature->GetNode()->GetVisibility() <= GenApi::Guru;
}

bool hasValue(GenApi::IValue *feature)
{
    const GenApi::EInterfaceType type = typeOf(feature);
    return type != GenApi::intfICategory && type != GenApi::intfICommand;
}

} // namespace

FeatureMenu::FeatureMenu(const QModelIndex &row, BrowserModel &shown, GenParamTreeModel &features,
                         bool isFavourite, QWidget *parent)
    : QMenu(parent)
    , m_row(row.sibling(row.row(), 0))
    , m_shown(shown)
    , m_features(features)
    , m_feature(shown.isFavourites(row) ? nullptr : featureOf(row))
{
    setObjectName(QStringLiteral("FeatureMenu"));
    try {
        if (m_feature && typeOf(m_feature) != GenApi::intfICategory) {
            addCopying();
            addSelection();
            addMarks(isFavourite);
        } else if (m_feature) {
            addAction(tr("Copy Name"), this, [this] {
                QGuiApplication::clipboard()->setText(nameOf(m_feature));
            })->setObjectName(QStringLiteral("copyName"));
            addSeparator();
        }
    } catch (const GenICam::GenericException &) {
        // Entries whose information is not available are left out.
    }
    addCategoryActions();
}

void FeatureMenu::addCopying()
{
    const auto add = [this](const char *name, const QString &title, const QString &text) {
        QAction *action =
            addAction(title, this, [text] { QGuiApplication::clipboard()->setText(text); });
        action->setObjectName(QString::fromLatin1(name));
        action->setEnabled(!text.isNull());
    };
    const QString name = nameOf(m_feature);
    const QString value = hasValue(m_feature) ? m_features.knownText(m_feature) : QString();
    add("copyName", tr("Copy Name"), name);
    add("copyValue", tr("Copy Value"), value);
    add("copyBoth", tr("Copy \"Name = Value\""),
        value.isNull() ? value : name + QStringLiteral(" = ") + value);
    addSeparator();
}

void FeatureMenu::addSelection()
{
    std::vector<GenApi::IValue *> selectors;
    std::vector<GenApi::IValue *> others;
    try {
        selectors = selectorsOf(m_feature);
        others = selectedBy(m_feature);
    } catch (const GenICam::GenericException &) {
        return; // the description contradicts itself
    }
    for (GenApi::IValue *selector : selectors) {
        if (isForUsers(selector))
            addWay(this, tr("Go to %1").arg(titleOf(selector)), selector);
    }
    QVector<GenApi::IValue *> selected;
    for (GenApi::IValue *feature : others) {
        if (isForUsers(feature))
            selected.append(feature);
    }
    if (!selected.isEmpty()) {
        QMenu *menu = addMenu(tr("Go to Selected Feature"));
        menu->setObjectName(QStringLiteral("selectedFeatures"));
        for (GenApi::IValue *feature : std::as_const(selected))
            addWay(menu, titleOf(feature), feature);
    }
    if (m_shown.isBelowFavourites(m_row))
        addWay(this, tr("Show in Its Category"), m_feature);
    if (hasValue(m_feature)) {
        for (GenApi::IValue *selector : selectors)
            addTable(selector, {m_feature});
    }
    QVector<GenApi::IValue *> columns;
    for (GenApi::IValue *feature : std::as_const(selected)) {
        if (hasValue(feature) && m_shown.place(feature).isValid() && columns.size() < maxColumns)
            columns.append(feature);
    }
    if (!columns.isEmpty())
        addTable(m_feature, columns);
    addSeparator();
}

void FeatureMenu::addTable(GenApi::IValue *selector, const QVector<GenApi::IValue *> &features)
{
    const QModelIndex place = m_shown.place(selector);
    const bool isLocked =
        place.isValid() && !(place.sibling(place.row(), 1).flags() & Qt::ItemIsEditable);
    if (isLocked || !isForUsers(selector))
        return;
    addAction(tr("Values by %1…").arg(titleOf(selector)), this, [this, selector, features] {
        emit tableWanted(selector, features);
    })->setObjectName(QStringLiteral("table"));
}

void FeatureMenu::addWay(QMenu *menu, const QString &text, GenApi::IValue *feature)
{
    menu->addAction(text, this, [this, feature] { emit featureWanted(feature); })
        ->setObjectName(QStringLiteral("goTo") + nameOf(feature));
}

void FeatureMenu::addMarks(bool isFavourite)
{
    const QString text = isFavourite ? tr("Remove from Favourites") : tr("Add to Favourites");
    QAction *star = addAction(BrowserModel::star(), text, this, [this, isFavourite] {
        emit favouriteWanted(m_feature, !isFavourite);
    });
    star->setObjectName(QStringLiteral("favourite"));
    QAction *putBack = addAction(tr("Put Back"), this, [this] { emit putBackWanted(m_feature); });
    putBack->setObjectName(QStringLiteral("putBack"));
    putBack->setEnabled(m_shown.marks().wasChanged(m_feature));
    addSeparator();
}

void FeatureMenu::addCategoryActions()
{
    if (m_shown.hasChildren(m_row)) {
        addAction(tr("Expand All Below"), this, [this] {
            emit expansionWanted(m_row, true);
        })->setObjectName(QStringLiteral("expand"));
        addAction(tr("Collapse All Below"), this, [this] {
            emit expansionWanted(m_row, false);
        })->setObjectName(QStringLiteral("collapse"));
    }
    addAction(tr("Read Again"), this, [this] {
        readAgain(m_row);
    })->setObjectName(QStringLiteral("readAgain"));
}

void FeatureMenu::readAgain(const QModelIndex &row)
{
    auto *feature = featureOf(row);
    try {
        if (feature && !m_shown.isFavourites(row)) {
            feature->GetNode()->InvalidateNode();
            m_shown.refresh(feature);
        }
    } catch (const GenICam::GenericException &) {
        // The error shows in the cell, because the next read fails as well.
    }
    for (int child = 0; child < m_shown.rowCount(row); ++child)
        readAgain(m_shown.index(child, 0, row));
}

} // namespace OrvGui
