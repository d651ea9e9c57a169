#include "TaveloDeskrigApp.h"

#include "Console.h"

namespace Tavelo::TaveloDeskrigApp
{

int run()
{
    Console().writeError(
        QStringLiteral("Tavelo Deskrig: this build has no window yet. See --help for the command line.\n"));
    return 1;
}

} // namespace Tavelo::TaveloDeskrigApp
