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

/// Reads the values of a camera's parameters that widgets show, without blocking the window for
/// each answer of the camera.
///
/// Before widgets are bound, `fetchNow` reads all values in a few transfers. Later reads run in the
/// background: pass the function that needs them to `whenKnown`. Such a function reads through
/// `get`. For an array whose node map cannot look ahead, nothing is fetched and functions are
/// called at once.
class FeatureReader
{
public:
    using Params = QVector<const OrvGenParam::Param *>;
    using Names = QVector<const char *>;

    FeatureReader();
    ~FeatureReader();
    Q_DISABLE_COPY(FeatureReader)

    /// The array whose parameters are read, which has to live until another one is set; null for
    /// none. Pending calls for the former one are dropped.
    void setArray(const OrvGenParam::Array *array);

    /// Whether values have to be transferred before they are shown.
    bool looksAhead() const { return lookAhead() != nullptr; }

    /// Blocks. Null pointers are left out.
    void fetchNow(const Params &params) const;

    /// The same by name, on any thread. The array must not be in use elsewhere.
    static void fetchNow(const OrvGenParam::Array &array, const Names &features);

    /// Null pointers for the parameters that the array lacks.
    static Params named(const OrvGenParam::Array &array, const Names &features);

    /// The result of a function that only reads parameters. The values are a second old at most
    /// when all are known; otherwise they are read from the camera. May call the function several
    /// times.
    template<class Question>
    auto get(Question question) const -> decltype(question())
    {
        decltype(question()) value{};
        const bool isKnown = look([&] { value = question(); });
        return isKnown ? value : question();
    }

    /// Reads the value or a limit of a number. Changes the value only if the camera answers; false
    /// if it does not, and for null.
    bool read(const OrvGenParam::Int *param, int64_t (OrvGenParam::Int::*question)(int32_t *) const,
              qint64 &value) const;

    /// The access modes of a parameter; false for null.
    bool isReadable(const OrvGenParam::Param *param) const;
    bool isWritable(const OrvGenParam::Param *param) const;

    /// Calls the function as soon as all values of the parameters are known, which may be at once.
    /// A later call for the same owner and subject replaces a pending one.
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
    QTimer m_timer; ///< collects the notifications of one change of the camera
    QVector<Waiting> m_waiting;
    QVector<Waiting> m_underWay;
    std::unique_ptr<OrvGenParam::LookAhead::Request> m_request;
};

} // namespace OrvGui
