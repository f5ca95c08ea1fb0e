// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QSettings;

namespace OrvGenParam {
class Array;
}
namespace OrvGui {
class OrvGenParamTreeView;
}

/// A window with the feature trees of two cameras side by side. It restores its last state.
class TwoTrees : public QWidget
{
    Q_OBJECT

public:
    /// The parameters and the settings must outlive the window.
    TwoTrees(OrvGenParam::Array *left, OrvGenParam::Array *right, QSettings &settings);

    OrvGui::OrvGenParamTreeView &left() const { return *m_left; }
    OrvGui::OrvGenParamTreeView &right() const { return *m_right; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void restore(OrvGui::OrvGenParamTreeView &tree, const QString &key);

    OrvGui::OrvGenParamTreeView *m_left;
    OrvGui::OrvGenParamTreeView *m_right;
    QSettings &m_settings;
};
