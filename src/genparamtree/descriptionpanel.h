// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QTextBrowser>

namespace OrvGui {

class TreeLookAhead;

/// Shows the description of a feature. What the camera says of itself is shown literally: its texts
/// are no markup, and nothing that they name is opened.
class DescriptionPanel : public QTextBrowser
{
    Q_OBJECT

public:
    explicit DescriptionPanel(QWidget *parent = nullptr);

    /// Null, or a feature that cannot be described, leaves the panel empty. To be called again when
    /// the feature changes; the reader's place in the text stays. What is not known yet is left
    /// out, or stays as it was; without a look-ahead the camera is waited for.
    void describe(GenApi::IValue *feature, TreeLookAhead *lookAhead);

    QVariant loadResource(int type, const QUrl &name) override;

private:
    const GenApi::IValue *m_feature = nullptr; ///< only to be compared
    QString m_text;
};

} // namespace OrvGui
