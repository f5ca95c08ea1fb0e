// SPDX-License-Identifier: MIT
#include "browser/browserstate.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace OrvGui {

namespace {

constexpr char widthMark[] = "&amp;W";
constexpr char levelMark[] = "&amp;V";
constexpr char ownMark[] = "&amp;B";

const QLatin1String searchKey("searchTexts");
const QLatin1String favouritesKey("favourites");

/// The digits after the first mark; null without a mark.
QByteArray numberAfter(const QByteArray &text, const char *mark)
{
    const int start = int(text.indexOf(mark));
    if (start < 0)
        return QByteArray();
    int end = start + int(qstrlen(mark));
    const int first = end;
    if (end < int(text.size()) && text.at(end) == '-')
        ++end;
    while (end < int(text.size()) && text.at(end) >= '0' && text.at(end) <= '9')
        ++end;
    return QByteArray(text.constData() + first, end - first);
}

/// Whether the tree can parse the number after the mark. A missing number or mark is valid.
bool isNumberAt(const QByteArray &text, const char *mark)
{
    const QByteArray digits = numberAfter(text, mark);
    const bool isAtEnd = text.endsWith(mark);
    bool isNumber = false;
    digits.toInt(&isNumber);
    return digits.isNull() || isAtEnd || isNumber;
}

bool isOfTree(const QByteArray &text)
{
    const bool hasMark = text.contains(widthMark) || text.contains(levelMark);
    return hasMark && isNumberAt(text, widthMark) && isNumberAt(text, levelMark);
}

QStringList toList(const QJsonArray &array)
{
    QStringList list;
    for (const QJsonValue &value : array)
        list << value.toString();
    return list;
}

} // namespace

std::optional<BrowserState> BrowserState::fromText(const QByteArray &text)
{
    BrowserState state;
    const int mark = int(text.lastIndexOf(ownMark));
    state.tree = mark < 0 ? text : text.left(mark);
    if (!(mark == 0 || isOfTree(state.tree)))
        return {};
    if (mark < 0)
        return state;

    const QByteArray own = text.mid(mark + int(qstrlen(ownMark)));
    const QByteArray json = QByteArray::fromBase64(own, QByteArray::Base64UrlEncoding);
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return {};
    state.m_rest = document.object();
    state.searchesTexts = state.m_rest.take(searchKey).toBool(true);
    const QJsonObject favourites = state.m_rest.take(favouritesKey).toObject();
    for (auto it = favourites.begin(); it != favourites.end(); ++it)
        state.favourites.insert(it.key(), toList(it.value().toArray()));
    return state;
}

QByteArray BrowserState::toText() const
{
    QJsonObject own = m_rest;
    own.insert(searchKey, searchesTexts);
    QJsonObject models;
    for (auto it = favourites.begin(); it != favourites.end(); ++it) {
        if (!it.value().isEmpty())
            models.insert(it.key(), QJsonArray::fromStringList(it.value()));
    }
    own.insert(favouritesKey, models);
    const QByteArray json = QJsonDocument(own).toJson(QJsonDocument::Compact);
    return tree + ownMark +
           json.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

std::optional<int> BrowserState::level() const
{
    bool isNumber = false;
    const int level = numberAfter(tree, levelMark).toInt(&isNumber);
    return isNumber ? std::optional<int>(level) : std::nullopt;
}

QByteArray BrowserState::withLevel(const QByteArray &tree, std::optional<int> level)
{
    const int mark = int(tree.indexOf(levelMark));
    const QByteArray rest = mark < 0 ? tree : tree.left(mark);
    return level ? rest + levelMark + QByteArray::number(*level) : rest;
}

} // namespace OrvGui
