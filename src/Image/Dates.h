// Dates of directory records.
#pragma once

#include <cstdint>

#include "Image/Record.h"
#include "Platform/Platform.h"

namespace trovex::image {

// The date as it is recorded, without regard to its zone. A field out of its range becomes the
// nearest value that is in it: a date that was never set is January 1st, 1900.
LocalTime RecordedTime(const RecordDate& date);

// The moment that a date with a zone stands for, in seconds since 1970 began in Greenwich. A zone
// that cannot be is taken for that of Greenwich.
std::int64_t RecordedMoment(const RecordDate& date);

}  // namespace trovex::image
