// SPDX-License-Identifier: MIT
#include "genparamtree/featureplaces.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <atomic>
#include <cstdint>
#include <utility>

namespace {

// Categories of real cameras are shorter.
const std::size_t longList = 500;

std::size_t fingerprintOf(const GenApi::FeatureList_t &list)
{
    std::size_t fingerprint = list.size();
    for (std::size_t row = 0; row < list.size(); ++row)
        fingerprint += (2 * row + 1) * reinterpret_cast<std::uintptr_t>(list[row]);
    return fingerprint;
}

} // namespace

int FeaturePlaces::count(const GenApi::ICategory &category)
{
    GenApi::FeatureList_t list = fetch(category);
    const auto length = static_cast<int>(list.size());
    keep(category, std::move(list));
    return length;
}

GenApi::IValue *FeaturePlaces::at(const GenApi::ICategory &category, int row)
{
    const auto position = static_cast<std::size_t>(row);
    const bool mayKeep = QThread::currentThread() == thread();
    if (mayKeep) {
        const auto kept = m_longLists.find(&category);
        if (kept != m_longLists.end() && position < kept->second.size())
            return kept->second[position];
    }
    GenApi::FeatureList_t list = fetch(category);
    GenApi::IValue *feature = position < list.size() ? list[position] : nullptr;
    if (mayKeep)
        keep(category, std::move(list));
    return feature;
}

GenApi::FeatureList_t FeaturePlaces::fetch(const GenApi::ICategory &category)
{
    GenApi::FeatureList_t list = m_features.of(category);
    if (const auto hints = std::atomic_load(&m_hints)) {
        const auto known = hints->fingerprints.find(&category);
        if (known == hints->fingerprints.end() || known->second != fingerprintOf(list))
            std::atomic_store(&m_hints, std::shared_ptr<const Hints>());
    }
    return list;
}

void FeaturePlaces::keep(const GenApi::ICategory &category, GenApi::FeatureList_t list)
{
    if (list.size() < longList) {
        m_longLists.erase(&category);
        return;
    }
    if (m_longLists.empty())
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    m_longLists[&category] = std::move(list);
}

bool FeaturePlaces::event(QEvent *event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    m_longLists.clear();
    return true;
}

FeaturePlaces::Place FeaturePlaces::find(const GenApi::IValue *value, GenApi::ICategory &root)
{
    auto hints = std::atomic_load(&m_hints);
    if (!hints || !isRight(*hints, value) || hints != std::atomic_load(&m_hints)) {
        const auto fresh = std::make_shared<Hints>();
        note(root, nullptr, *fresh);
        hints = fresh;
        std::atomic_store(&m_hints, hints);
    }
    const auto found = hints->places.find(value);
    return found == hints->places.end() ? Place() : found->second;
}

bool FeaturePlaces::isRight(const Hints &hints, const GenApi::IValue *value)
{
    while (value) {
        const auto hint = hints.places.find(value);
        if (hint == hints.places.end() || at(*hint->second.category, hint->second.row) != value)
            return false;
        value = hint->second.parent;
    }
    return true;
}

// Only the first occurrence of a category can contain first places.
void FeaturePlaces::note(GenApi::ICategory &category, GenApi::IValue *value, Hints &hints) const
{
    const auto noted = hints.fingerprints.emplace(&category, 0);
    if (!noted.second)
        return;
    const GenApi::FeatureList_t list = m_features.of(category);
    noted.first->second = fingerprintOf(list);
    for (std::size_t row = 0; row < list.size(); ++row) {
        hints.places.emplace(list[row], Place{&category, value, static_cast<int>(row)});
        if (const GenApi::CCategoryPtr child{list[row]})
            note(*child, list[row], hints);
    }
}
