// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Types.h>

#include <cstddef>
#include <vector>

namespace GenApi_3_0 {

/// A list of numbers of fixed size, returned by value.
template<typename T>
class Autovector
{
public:
    Autovector() = default;
    explicit Autovector(std::size_t size) : m_values(size) {}

    std::size_t size() const { return m_values.size(); }
    T &operator[](std::size_t index) { return m_values[index]; }
    const T &operator[](std::size_t index) const { return m_values[index]; }

private:
    std::vector<T> m_values;
};

typedef Autovector<int64_t> int64_autovector_t;
typedef Autovector<double> double_autovector_t;

} // namespace GenApi_3_0
