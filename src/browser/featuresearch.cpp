// SPDX-License-Identifier: MIT
#include "browser/featuresearch.h"

#include "base/genicamstring.h"

#include <GenApi/GenApi.h>

#include <algorithm>
#include <numeric>

namespace OrvGui {

namespace {

// Separates the texts, so that a match does not span two of them.
const QChar boundary('\n');

QString folded(const QString &text)
{
    return text.toCaseFolded();
}

QString namesOf(GenApi::INode *node)
{
    return folded(fromUtf8(node->GetName(false)) + boundary + fromUtf8(node->GetDisplayName()));
}

QString textsOf(GenApi::INode *node)
{
    return folded(fromUtf8OrLatin1(node->GetToolTip()) + boundary +
                  fromUtf8OrLatin1(node->GetDescription()));
}

} // namespace

void FeatureSearch::setWithDescriptions(bool withDescriptions)
{
    m_withDescriptions = withDescriptions;
    m_hasResult = false;
}

QStringList FeatureSearch::wordsOf(const QString &text)
{
    const QString words = text.simplified();
    return words.isEmpty() ? QStringList() : words.split(QLatin1Char(' '));
}

const FeatureSearch::Result &FeatureSearch::find(const QString &text)
{
    prepare();
    const QString wanted = folded(text);
    std::vector<int> candidates;
    if (m_hasResult && wanted.startsWith(m_text)) {
        candidates = m_found;
    } else {
        candidates.resize(m_entries.size());
        std::iota(candidates.begin(), candidates.end(), 0);
    }
    const QStringList words = wordsOf(wanted);
    m_looks = static_cast<int>(candidates.size());
    m_found.clear();
    m_result = Result();
    for (const int candidate : candidates) {
        const Entry &entry = m_entries[static_cast<std::size_t>(candidate)];
        if (!matches(entry, words))
            continue;
        m_found.push_back(candidate);
        m_result.features.insert(entry.feature);
        for (std::size_t level = 0; level < m_result.counts.size(); ++level)
            m_result.counts[level] += entry.level <= static_cast<int>(level) ? 1 : 0;
    }
    m_text = wanted;
    m_hasResult = true;
    return m_result;
}

bool FeatureSearch::matches(const Entry &entry, const QStringList &words) const
{
    return std::all_of(words.begin(), words.end(), [&](const QString &word) {
        return entry.names.contains(word) || (m_withDescriptions && entry.texts.contains(word));
    });
}

void FeatureSearch::prepare()
{
    if (m_root && m_entries.empty())
        collect(m_root, GenApi::Beginner);
}

void FeatureSearch::collect(GenApi::IValue *category, int level)
{
    auto *node = dynamic_cast<GenApi::ICategory *>(category);
    if (!node)
        return;
    GenApi::FeatureList_t features;
    try {
        node->GetFeatures(features);
    } catch (const GenICam::GenericException &) {
        return;
    }
    for (std::size_t i = 0; i < features.size(); ++i)
        add(features[i], level);
}

void FeatureSearch::add(GenApi::IValue *feature, int level)
{
    try {
        GenApi::INode *node = feature->GetNode();
        const int own = std::max(level, static_cast<int>(node->GetVisibility()));
        const auto place = m_places.emplace(feature, m_entries.size());
        if (place.second) {
            m_entries.push_back({feature, own, namesOf(node), textsOf(node)});
        } else {
            // A category in several categories, or in a cycle, is visited once.
            Entry &known = m_entries[place.first->second];
            if (known.level <= own)
                return;
            known.level = own;
        }
        collect(feature, own);
    } catch (const GenICam::GenericException &) {
        // A node without readable texts is not found.
    }
}

} // namespace OrvGui
