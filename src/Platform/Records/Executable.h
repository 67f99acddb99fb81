// Which kind of executable a file is, from its headers.
#pragma once

#include <type_traits>

#include "Platform/Records/Resources.h"

namespace trovex::records {

enum class ExecutableKind { kOther, kNe, kPe };

// The kind, and where the new header behind that of MS-DOS stands.
ExecutableKind KindOf(ByteReader& file, std::uint64_t& header);

// What `use` makes of the resources of an NE or PE executable; a value of that type's own for any
// other file.
template <typename Use>
auto OnResources(ByteReader& file, Use use) {
  std::uint64_t header = 0;
  const ExecutableKind kind = KindOf(file, header);
  if (kind == ExecutableKind::kPe) return use(PeResources(file, header));
  if (kind == ExecutableKind::kNe) return use(NeResources(file, header));
  return std::invoke_result_t<Use, NeResources>();
}

}  // namespace trovex::records
