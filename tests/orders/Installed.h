#pragma once

#include <filesystem>

#include "orders/Cartridge.h"

namespace orders {

inline const std::filesystem::path outputFolder = std::filesystem::temp_directory_path() / "zarvikrt_orders_test";

/// Installs the cartridge, whose files go to `outputFolder`, unless that was done before.
inline void ensureInstalled() { [[maybe_unused]] static const bool installed = (install(outputFolder.string()), true); }

}  // namespace orders
