// SPDX-License-Identifier: MIT
#include "twotrees.h"

#include <orvgenparamtreeview.h>

#include <QHBoxLayout>
#include <QSettings>
#include <QSplitter>

#include <stdexcept>

namespace {

constexpr char leftKey[] = "trees/left";
constexpr char rightKey[] = "trees/right";
constexpr char geometryKey[] = "geometry";

} // namespace

TwoTrees::TwoTrees(OrvGenParam::Array *left, OrvGenParam::Array *right, QSettings &settings)
    : m_left(new OrvGui::OrvGenParamTreeView(left, this))
    , m_right(new OrvGui::OrvGenParamTreeView(right, this))
    , m_settings(settings)
{
    auto *splitter = new QSplitter;
    splitter->addWidget(m_left);
    splitter->addWidget(m_right);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);

    resize(1000, 640);
    restoreGeometry(m_settings.value(QLatin1String(geometryKey)).toByteArray());
    // Before the trees are shown for the first time, so that they keep the restored column widths.
    restore(*m_left, QLatin1String(leftKey));
    restore(*m_right, QLatin1String(rightKey));
}

void TwoTrees::restore(OrvGui::OrvGenParamTreeView &tree, const QString &key)
{
    const QByteArray state = m_settings.value(key).toByteArray();
    try {
        tree.loadState(state.constData()); // restores the level,
        tree.loadState(state.constData()); // and now the categories that are visible at that level
    } catch (const std::logic_error &) {
        // The stored text is not a tree's state; the tree keeps its defaults.
    }
}

void TwoTrees::closeEvent(QCloseEvent *event)
{
    m_settings.setValue(QLatin1String(leftKey), QByteArray(m_left->saveState()));
    m_settings.setValue(QLatin1String(rightKey), QByteArray(m_right->saveState()));
    m_settings.setValue(QLatin1String(geometryKey), saveGeometry());
    QWidget::closeEvent(event);
}
