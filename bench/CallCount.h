// SPDX-License-Identifier: MIT
#pragma once

/// Counts the text measurements that the interface asks of GDI+, in every form that GDI+ has, while it lives: the calls pass
/// through the benchmark on their way.
class TextMeasurementCount
{
public:
    /// @throws std::runtime_error where the interface's calls cannot be led here
    TextMeasurementCount();
    ~TextMeasurementCount();
    TextMeasurementCount(const TextMeasurementCount&) = delete;
    TextMeasurementCount& operator=(const TextMeasurementCount&) = delete;
    int Count() const;

private:
    void** measureString_ = nullptr;
    void** measureDriverString_ = nullptr; ///< null while the interface never uses it
    void** measureRanges_ = nullptr;       ///< the same
};
