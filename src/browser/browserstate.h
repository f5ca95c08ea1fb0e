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
/// The text of a tree alone is valid, too. A tree can load the text of a browser: it parses numbers
/// up to the first unknown character, and the browser's part contains nothing that looks like the
/// name of a category.
class BrowserState
{
public:
    /// Returns nothing for an invalid text: without a width or level, with one that is not a
    /// number, or with a damaged browser part.
    static std::optional<BrowserState> fromText(const QByteArray &text);
    QByteArray toText() const;

    QByteArray tree;                        ///< as the tree saves it
    bool searchesTexts = true;              ///< tool tips and descriptions, too
    QHash<QString, QStringList> favourites; ///< the names of features, by camera model

    /// The level in the tree's part, if there is one.
    std::optional<int> level() const;

    /// The tree's part with another level; with a null level, without one.
    static QByteArray withLevel(const QByteArray &tree, std::optional<int> level);

private:
    QJsonObject m_rest; ///< entries of later versions, which are kept
};

} // namespace OrvGui
