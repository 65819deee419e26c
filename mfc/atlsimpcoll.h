// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

// As much of the original as collects and lists values.
template <class Value>
class CSimpleArray
{
public:
    int GetSize() const { return static_cast<int>(values_.size()); }
    bool Add(const Value& value)
    {
        values_.push_back(value);
        return true;
    }
    void RemoveAll() { values_.clear(); }
    Value& operator[](int index) { return values_[static_cast<std::size_t>(index)]; }
    const Value& operator[](int index) const { return values_[static_cast<std::size_t>(index)]; }

private:
    std::vector<Value> values_;
};
