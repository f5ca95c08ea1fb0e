// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/LookAhead.h>

#include <QTimer>
#include <QVector>

#include <functional>
#include <memory>

namespace OrvGenParam {
class Array;
class Param;
} // namespace OrvGenParam

namespace OrvGui {

/// Reads what widgets show of a camera's parameters, without having the window wait for each
/// answer of the camera.
///
/// Before widgets are bound, `fetchNow` reads all of it in a few transfers. What has to be read
/// again later is read in the background: give `whenKnown` what is to be done then. Whatever reads
/// goes through `get`. For an array whose node map cannot look ahead, nothing is fetched and
/// everything is done at once.
class FeatureReader
{
public:
    using Params = QVector<const OrvGenParam::Param *>;
    using Names = QVector<const char *>;

    FeatureReader();
    ~FeatureReader();
    Q_DISABLE_COPY(FeatureReader)

    /// The array whose parameters are read, which has to live until another one is set; null for
    /// none. What has not been done yet of the former one is dropped.
    void setArray(const OrvGenParam::Array *array);

    /// Whether what is to be shown has to be transferred first.
    bool looksAhead() const { return lookAhead() != nullptr; }

    /// Null pointers are left out.
    void fetchNow(const Params &params) const;

    /// The same by name, of an array that nobody else uses yet; on any thread.
    static void fetchNow(const OrvGenParam::Array &array, const Names &features);

    /// Null pointers for those that the array lacks.
    static Params named(const OrvGenParam::Array &array, const Names &features);

    /// What the function reads of parameters and nothing else: with values that are a second old at
    /// most, as long as all are known. May call the function several times.
    template<class Get>
    auto get(Get read) const -> decltype(read())
    {
        decltype(read()) value{};
        const bool isKnown = look([&] { value = read(); });
        return isKnown ? value : read();
    }

    /// The access modes of a parameter; false for null.
    bool isReadable(const OrvGenParam::Param *param) const;
    bool isWritable(const OrvGenParam::Param *param) const;

    /// Calls the function as soon as all is known that can be read of the parameters: at once if
    /// that is so now. A later call for the same two replaces one that is still to come.
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
    QTimer m_timer; ///< collects what one change of the camera leads to
    QVector<Waiting> m_waiting;
    QVector<Waiting> m_underWay;
    std::unique_ptr<OrvGenParam::LookAhead::Request> m_request;
};

} // namespace OrvGui
