#ifndef ZUVO_BUFFER_H
#define ZUVO_BUFFER_H

#include <cstddef>
#include <cstdlib>

namespace zuvo {

/// Memory that only grows and is kept from one drawing to the next. A plain record: a static one starts out empty.
template <typename T>
struct Buffer {
    T* items;
    size_t capacity;

    /// Makes room for @p count items and keeps those there are. Returns false without memory.
    bool reserve(size_t count)
    {
        if (count <= capacity)
            return true;
        const size_t wanted = count + count / 2;
        if (wanted > static_cast<size_t>(-1) / sizeof(T))
            return false;
        void* grown = std::realloc(items, wanted * sizeof(T));
        if (!grown)
            return false;
        items = static_cast<T*>(grown);
        capacity = wanted;
        return true;
    }

    T& operator[](size_t index) { return items[index]; }
    const T& operator[](size_t index) const { return items[index]; }
};

} // namespace zuvo

#endif
