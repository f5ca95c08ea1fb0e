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

/// Keeps a tree from waiting for its camera: the parts of the tree look at what is known, and what
/// they find missing is read in the background.
///
/// What is missed until the program is back in its event loop is read together. Only one such read
/// is under way at a time. What is missed in between comes after it; but when it takes long, or
/// nothing of it is on the screen any more, it is replaced, and what is not on the screen is
/// dropped.
class TreeLookAhead : public QObject
{
    Q_OBJECT

public:
    using Ask = OrvGenParam::LookAhead::Ask;
    using Features = std::set<GenApi::IValue *>;

    /// How much of a feature is read when something of it is missed.
    enum Extent {
        Cell,      ///< what its row shows
        Everything ///< and what its description and its editor need
    };

    /// Null for a node map whose reads block. `shown` returns the features on the screen.
    static TreeLookAhead *create(GenApi::INodeMap *map, std::function<Features()> shown,
                                 QObject *parent);

    /// Runs a function that asks the feature's node, and is left at what is not known: no frame of
    /// Qt's may be between the two. False when it was; then it is read, and `arrived` follows.
    bool look(GenApi::IValue *feature, Extent extent, const Ask &ask);

    /// Looks at everything, as the function of `look` would. False when something is missing.
    bool knowsEverything(GenApi::IValue *feature);

signals:
    /// What was missed can be looked at again; some of it may still be on its way.
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
    Extents m_asked; ///< by the last request
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceEnd;
    bool m_isUnderWay = false;
    QTimer m_start;
    QTimer m_progress;
    std::unique_ptr<OrvGenParam::LookAhead::Request> m_request;
};

} // namespace OrvGui
