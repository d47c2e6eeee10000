#ifndef ZELTNAVMSG_FIELDS_BITFIELDARRAYDEF_H
#define ZELTNAVMSG_FIELDS_BITFIELDARRAYDEF_H

#include <cstdint>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "fields/BitStructDef.h"

namespace ZeltNavMsg {

// N like elements of `elementWidth` bits laid end to end, named prefix + 1 ... prefix + N.
// T is a value field or a structure constructible as (parent, name, ranges). The
// elements are built all or nothing: if one fails, those already built are destroyed
// and the error goes on.
template <typename T, int N>
class BitFieldArrayDef : public BitStructDef {
    static_assert(N > 0);

  public:
    BitFieldArrayDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                     std::string_view elementPrefix, std::int32_t elementWidth,
                     const Modifiers& modifiers = {})
        : BitStructDef(parent, std::move(name), std::move(ranges), modifiers) {
        int built = 0;
        try {
            for (; built < N; ++built) {
                std::string elementName(elementPrefix);
                elementName += std::to_string(built + 1);
                new (&elements_[built])
                    T(this, std::move(elementName), bits(built * elementWidth, elementWidth));
            }
        } catch (...) {
            while (built > 0) {
                elements_[--built].~T();
            }
            throw;
        }
        constructed_ = true;
    }
    BitFieldArrayDef(const BitFieldArrayDef&) = delete;
    BitFieldArrayDef& operator=(const BitFieldArrayDef&) = delete;
    ~BitFieldArrayDef() override {
        if (constructed_) {
            for (int i = N; i > 0; --i) {
                elements_[i - 1].~T();
            }
        }
    }

    [[nodiscard]] FieldKind fieldKind() const override { return FieldKind::Array; }
    [[nodiscard]] static constexpr int size() noexcept { return N; }
    [[nodiscard]] const T& operator[](int i) const noexcept { return elements_[i]; }

  private:
    union {
        T elements_[N];
    };
    bool constructed_ = false;
};

}  // namespace ZeltNavMsg

#endif
