// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/INodeMap.h>
#include <GenApi/IValue.h>
#include <OrvGenParam/LookAhead.h>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace OrvGui {

/// Prevents a tree from blocking for its camera: the parts of the tree use cached values, and
/// values that are missing are read in the background.
///
/// Values that are found missing until the program returns to its event loop are read together.
/// Only one such read runs at a time. Values that are found missing during a read come after it;
/// but when the read takes long, or none of its features is visible any more, it is replaced, and
/// features that are not visible are dropped.
class TreeLookAhead : public QObject
{
    Q_OBJECT

public:
    using Ask = OrvGenParam::LookAhead::Ask;
    using Features = std::set<GenApi::IValue *>;

    /// The values of a feature that are read when one of them is missing.
    enum Extent {
        Cell,      ///< those that its row shows
        Everything ///< also those that its description and its editor need
    };

    /// Null for a node map whose reads block. `shown` returns the visible features.
    static TreeLookAhead *create(GenApi::INodeMap *map, std::function<Features()> shown,
                                 QObject *parent);

    /// Runs a function that reads the feature's node. A value that is not cached aborts the
    /// function by an exception, so no stack frame of Qt may be in between. Returns false then,
    /// reads the value, and emits `arrived` afterwards.
    bool look(GenApi::IValue *feature, Extent extent, const Ask &ask);

    /// Does the same for all values of the feature. Returns false when one is missing.
    bool knowsEverything(GenApi::IValue *feature);

signals:
    /// Try to read missing values again; some may still be missing.
    void arrived();

private:
    using Extents = std::map<GenApi::IValue *, Extent>;

    TreeLookAhead(OrvGenParam::LookAhead &map, std::function<Features()> shown, QObject *parent);
    void note(GenApi::IValue *feature, Extent extent);
    void startFetch();
    Extents stillShown() const;
    void fetch(Extents extents);
    void finish();

    OrvGenParam::LookAhead &m_map;
    const std::function<Features()> m_shown;
    Extents m_missed;
    Extents m_asked; ///< the features of the last request
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceEnd;
    bool m_isUnderWay = false;
    QTimer m_start;
    QTimer m_progress;
    std::unique_ptr<OrvGenParam::LookAhead::Request> m_request;
};

} // namespace OrvGui
