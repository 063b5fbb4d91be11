#include "inodeplugin.h"

namespace Lw {

// Out of line, so that the host's library holds the one table of the interface's operations.
INodePlugin::~INodePlugin() {}

} // namespace Lw
