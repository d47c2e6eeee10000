#ifndef ZELTNAVMSG_FIELDS_PARAMMODIFIERS_H
#define ZELTNAVMSG_FIELDS_PARAMMODIFIERS_H

#include <cstdint>
#include <string>

#include "fields/BitFieldDef.h"

// The parameter modifiers a schema declares its fields with, e.g.
//   toe(this, "toe", bits(0, 11), {ScaleFactorModifier(0, 300), UnitsModifier("s")})

namespace ZeltNavMsg {

class ParamsNotModified final : public BitFieldDef::ParamModifier {
  public:
    void apply(FieldParams& /*params*/) const override {}
};

class UnitsModifier final : public BitFieldDef::ParamModifier {
  public:
    explicit UnitsModifier(std::string units) : units_(std::move(units)) {}
    void apply(FieldParams& params) const override;

  private:
    std::string units_;
};

// Scale factor multiplier * 2^exponent (exact for a power-of-two multiplier).
class ScaleFactorModifier final : public BitFieldDef::ParamModifier {
  public:
    explicit ScaleFactorModifier(std::int32_t exponent, double multiplier = 1.0);
    void apply(FieldParams& params) const override { params.scaleFactor = scaleFactor_; }
    [[nodiscard]] double scaleFactor() const noexcept { return scaleFactor_; }

  private:
    double scaleFactor_;
};

// Adds flags (Hidden, Transparent, RawHexOnly, NoDefaults); several accumulate.
class FlagsModifier final : public BitFieldDef::ParamModifier {
  public:
    explicit FlagsModifier(std::uint32_t flags) noexcept : flags_(flags) {}
    void apply(FieldParams& params) const override { params.flags |= flags_; }

  private:
    std::uint32_t flags_;
};

// Makes the definition a member of variant `containerId` of its parent.
class ContainerIdModifier final : public BitFieldDef::ParamModifier {
  public:
    explicit ContainerIdModifier(std::int32_t containerId) noexcept : containerId_(containerId) {}
    void apply(FieldParams& params) const override { params.containerId = containerId_; }

  private:
    std::int32_t containerId_;
};

// The value of pi in angular scale factors: the interface documents' constant.
inline constexpr double kInterfacePi = 3.1415926535898;

}  // namespace ZeltNavMsg

#endif
