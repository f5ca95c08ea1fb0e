// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QTextBrowser>

namespace OrvGui {

class TreeLookAhead;

/// Shows the description of a feature. The camera's texts are shown literally: markup is not
/// interpreted, and resources that they name are not opened.
class DescriptionPanel : public QTextBrowser
{
    Q_OBJECT

public:
    explicit DescriptionPanel(QWidget *parent = nullptr);

    /// Null, or a feature without a description, empties the panel. Call it again when the feature
    /// changes; the scroll position is kept. Values that are not cached are left out or keep their
    /// last text; without a look-ahead the call blocks.
    void describe(GenApi::IValue *feature, TreeLookAhead *lookAhead);

    QVariant loadResource(int type, const QUrl &name) override;

private:
    const GenApi::IValue *m_feature = nullptr; ///< used for comparison only
    QString m_text;
};

} // namespace OrvGui
