#pragma once
// An array indexed from 1, as players and categories are. UBound() is its last index.
#include <vector>

template <class T>
class OneBased {
public:
    OneBased() = default;
    explicit OneBased(int upperBound, const T& fill = T()) : items_(upperBound, fill) {}

    int UBound() const { return int(items_.size()); }
    T& operator[](int index) { return items_.at(index - 1); }
    const T& operator[](int index) const { return items_.at(index - 1); }

    // ReDim: new bounds, old contents gone.
    void ReDim(int upperBound, const T& fill = T()) { items_.assign(upperBound, fill); }
    // ReDim Preserve: new bounds, contents kept as far as they reach.
    void ReDimPreserve(int upperBound) { items_.resize(upperBound); }

    bool operator==(const OneBased& other) const { return items_ == other.items_; }

private:
    std::vector<T> items_;
};
