// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace OrvGui {

/// The saved state of a browser: the state text of its tree, followed by the browser's own part.
///
/// The text of a tree alone is valid, too. A tree can load the text of a browser: it stops reading
/// numbers at the first unknown character, and the browser's part contains no names that it could
/// take for categories.
class BrowserState
{
public:
    /// Nothing for an invalid text: without a width or level, with widths or levels that are no
    /// numbers, or with a damaged part of the browser.
    static std::optional<BrowserState> fromText(const QByteArray &text);
    QByteArray toText() const;

    QByteArray tree;                        ///< as the tree saves it
    bool searchesTexts = true;              ///< tool tips and descriptions, too
    QHash<QString, QStringList> favourites; ///< the names of features, by camera model

    /// The level in the tree's part, if there is one.
    std::optional<int> level() const;

    /// The tree's part with another level, or without any.
    static QByteArray withLevel(const QByteArray &tree, std::optional<int> level);

private:
    QJsonObject m_rest; ///< what a later version has added
};

} // namespace OrvGui
