// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/LookAhead.h>

#include <QTimer>
#include <QVector>

#include <functional>
#include <memory>

namespace OrvGenParam {
class Array;
class Int;
class Param;
} // namespace OrvGenParam

namespace OrvGui {

/// Reads the values of a camera's parameters that widgets show, without blocking the window during
/// each transfer.
///
/// Before widgets are bound, `fetchNow` reads all values in a few transfers. Later reads run in the
/// background: pass the function that needs the values to `whenKnown`. Such a function reads
/// through `get`. For an array whose node map has no look-ahead, nothing is fetched and functions
/// are called at once.
class FeatureReader
{
public:
    using Params = QVector<const OrvGenParam::Param *>;
    using Names = QVector<const char *>;

    FeatureReader();
    ~FeatureReader();
    Q_DISABLE_COPY(FeatureReader)

    /// Sets the array whose parameters are read, which must exist until another one is set; null
    /// for none. Drops pending calls for the previous one.
    void setArray(const OrvGenParam::Array *array);

    /// Whether values have to be transferred before they are shown.
    bool looksAhead() const { return lookAhead() != nullptr; }

    /// Blocks. Null pointers are ignored.
    void fetchNow(const Params &params) const;

    /// The same by name, on any thread. The array must not be in use by others.
    static void fetchNow(const OrvGenParam::Array &array, const Names &features);

    /// Null pointers for the parameters that the array lacks.
    static Params named(const OrvGenParam::Array &array, const Names &features);

    /// The result of a function that only reads parameters. When all values are known, they are at
    /// most a second old; otherwise they are read from the camera. May call the function several
    /// times.
    template<class Question>
    auto get(Question question) const -> decltype(question())
    {
        decltype(question()) value{};
        const bool isKnown = look([&] { value = question(); });
        return isKnown ? value : question();
    }

    /// Reads the value or a limit of a number. Returns false, and leaves the value unchanged, if
    /// the camera does not answer and for null.
    bool read(const OrvGenParam::Int *param, int64_t (OrvGenParam::Int::*question)(int32_t *) const,
              qint64 &value) const;

    /// The access modes of a parameter; false for null.
    bool isReadable(const OrvGenParam::Param *param) const;
    bool isWritable(const OrvGenParam::Param *param) const;

    /// Calls the function when all values of the parameters are known, which may be at once. A
    /// later call for the same owner and subject replaces a pending one.
    void whenKnown(const void *owner, const void *subject, const Params &params,
                   const std::function<void()> &call);

private:
    struct Waiting
    {
        const void *owner;
        const void *subject;
        Params params;
        std::function<void()> call;
        int rounds = 0;
    };

    OrvGenParam::LookAhead *lookAhead() const;
    bool look(const OrvGenParam::LookAhead::Ask &ask) const;
    bool areKnown(const Params &params) const;
    void fetch();
    void fetched();

    const OrvGenParam::Array *m_array = nullptr;
    QTimer m_timer; ///< merges the notifications of one change of the camera
    QVector<Waiting> m_waiting;
    QVector<Waiting> m_underWay;
    std::unique_ptr<OrvGenParam::LookAhead::Request> m_request;
};

} // namespace OrvGui
