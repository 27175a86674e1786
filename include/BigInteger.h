#pragma once
namespace zarvik {
class BigInteger {};
}  // namespace zarvik
