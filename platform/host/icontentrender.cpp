#include "icontentrender.h"

namespace Lw {

// Out of line, so that the host's library holds the one table of the interface's operations.
IContentRender::~IContentRender() {}

} // namespace Lw
