// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace OrvGui {

/// What a browser remembers from one run of its program to the next: the state text of its tree,
/// and behind it the browser's own.
///
/// A text of the tree alone is one, too. The tree finds its part at the start of the whole, since
/// it stops reading numbers at what it does not know; the browser's part has no names that it could
/// take for categories.
class BrowserState
{
public:
    /// Nothing for a text that is none: one without a width or level, or where they are no numbers,
    /// or with a damaged part of the browser.
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
