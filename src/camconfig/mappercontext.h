// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/featurereader.h"

#include <QHash>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QVector>

#include <functional>
#include <memory>

class QTabWidget;
class QWidget;

namespace OrvGenParam {
class Boolean;
class Command;
class Enum;
class EnumEntry;
class Int;
} // namespace OrvGenParam

namespace OrvGui {

class FeatureJournal;
class Showing;

/// Reads and writes parameters; shared by the controls of a mapper.
///
/// Each control holds a reference, so that the context outlives a mapper that is destroyed by a
/// receiver of a control's signals.
class MapperContext : public std::enable_shared_from_this<MapperContext>
{
public:
    using Pointer = std::shared_ptr<MapperContext>;
    using ShowBound = std::function<void(const QObject *object)>;
    using Write = std::function<qint32()>;

    /// `showBound` shows the parameter that is bound to an object.
    MapperContext(qint64 valueCap, ShowBound showBound);
    ~MapperContext();

    void setArray(const OrvGenParam::Array *array);

    /// Stops background reads and updates of the widgets.
    void leaveMapper();
    bool hasMapper() const { return m_showBound != nullptr; }

    /// The result of a function that only reads parameters.
    template<class Get>
    auto read(Get get) const
    {
        return reader.get(get);
    }

    /// Stores the value that is shown; it is the previous value in the journal at the next write.
    void note(const OrvGenParam::Param *param, const QVariant &value);
    void forgetShown() { m_shown.clear(); }

    /// Records an accepted write in the journal and reports a refused one in a message box. Does
    /// nothing while the object is being updated with a value of the camera.
    template<class Kind>
    void write(QObject *object, const Kind *param, const QVariant &value, const Write &call)
    {
        write(object, refusalText(param), param, value, call);
    }

    /// Ends the updates of the object in progress, because its parameter has changed.
    void endShowings(const QObject *object);

    const qint64 valueCap;
    FeatureReader reader;
    std::shared_ptr<FeatureJournal> journal;  ///< null without an array
    QHash<QString, QHash<QString, int>> tabs; ///< parameter, entry: index of its tab
    QHash<QTabWidget *, QVector<QPointer<QWidget>>> removedPages; ///< the last page first

private:
    friend class Showing;

    static QString refusalText(const OrvGenParam::Boolean *param);
    static QString refusalText(const OrvGenParam::Command *param);
    static QString refusalText(const OrvGenParam::Enum *param);
    static QString refusalText(const OrvGenParam::Int *param);
    void write(QObject *object, const QString &refusalText, const OrvGenParam::Param *param,
               const QVariant &value, const Write &call);
    bool isShownIn(const QObject *object) const;

    ShowBound m_showBound;
    QVector<Showing *> m_showings;
    QHash<const OrvGenParam::Param *, QVariant> m_shown;
};

} // namespace OrvGui
