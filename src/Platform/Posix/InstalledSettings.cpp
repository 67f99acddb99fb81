#include "Platform/Posix/InstalledSettings.h"

#include <filesystem>

namespace trovex::posix {

std::string InstalledSettings(const std::string& program_directory, const std::string& config_home,
                              const std::string& home) {
  namespace fs = std::filesystem;
  if (fs::path(program_directory).filename() != "bin") return {};
  fs::path base = config_home;
  if (!base.is_absolute()) base = fs::path(home) / ".config";
  return base.is_absolute() ? (base / "trovex" / "Trovex.ini").string() : std::string();
}

}  // namespace trovex::posix
