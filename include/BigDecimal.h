#pragma once
namespace zarvik {
class BigDecimal {};
}  // namespace zarvik
