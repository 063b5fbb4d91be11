#include "inodeplugin.h"

namespace Lw {

// Out of line, so that the host's library holds the one table of the interface's operations.
INodePlugin::~INodePlugin() {}

// Here, too: inline it would be one icon for each library that hides its symbols.
QIcon& INodePlugin::icon()
{
    static QIcon none;
    return none;
}

} // namespace Lw
