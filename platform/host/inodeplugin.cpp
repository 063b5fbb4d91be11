#include "inodeplugin.h"

namespace Lw {

// Out of line, so that the host's library holds the one table of the interface's operations.
INodePlugin::~INodePlugin() {}

// Out of line, too: inline, each library that hides its symbols would have its own icon.
QIcon& INodePlugin::icon()
{
    static QIcon none;
    return none;
}

} // namespace Lw
