// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QSet>
#include <QString>
#include <QStringList>

#include <unordered_map>
#include <vector>

namespace OrvGui {

/// Finds features by words in their names, tool tips and descriptions.
///
/// The texts are collected at the first search; nothing is read from the camera. A search that
/// narrows the previous one compares only the previous results.
class FeatureSearch
{
public:
    using Features = QSet<const GenApi::IValue *>;

    struct Result
    {
        Features features;
        std::vector<int> counts{0, 0, 0}; ///< of the features found, by visibility level
    };

    /// The root of the features of all levels; it must outlive the search. Null for none.
    explicit FeatureSearch(GenApi::IValue *root) : m_root(root) {}

    /// Whether tool tips and descriptions are searched as well as names.
    void setWithDescriptions(bool withDescriptions);

    /// Collects the texts in advance of the first search.
    void prepare();

    /// Finds the features that contain all words of the text, in any order and case. An empty text
    /// finds all features.
    const Result &find(const QString &text);

    static QStringList wordsOf(const QString &text);

    /// The number of features that the last search compared.
    int looks() const { return m_looks; }

private:
    struct Entry
    {
        const GenApi::IValue *feature = nullptr;
        int level = 0; ///< the lowest one at which it has a row
        QString names;
        QString texts;
    };

    void collect(GenApi::IValue *category, int level);
    void add(GenApi::IValue *feature, int level);
    bool matches(const Entry &entry, const QStringList &words) const;

    GenApi::IValue *const m_root;
    std::vector<Entry> m_entries; ///< empty until the first search
    std::unordered_map<const GenApi::IValue *, std::size_t> m_places;
    std::vector<int> m_found; ///< indexes of the entries that the last search found
    QString m_text;
    Result m_result;
    bool m_hasResult = false;
    bool m_withDescriptions = true;
    int m_looks = 0;
};

} // namespace OrvGui
