#include "Rasterus.h"

namespace Rasterus {

InvalidArguments::InvalidArguments() : std::invalid_argument("invalid arguments") { }

InvalidArguments::~InvalidArguments() = default;

AbortException::AbortException() : std::runtime_error("abort") { }

AbortException::~AbortException() = default;

}
