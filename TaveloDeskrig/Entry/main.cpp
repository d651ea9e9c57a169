#include "ProcessStart.h"
#include "TaveloCLI.h"
#include "TaveloDeskrigApp.h"

int main(int argc, char *argv[])
{
    Tavelo::prepareProcess();
    const QStringList arguments = Tavelo::processArguments(argc, argv);
    if (Tavelo::TaveloCLI::shouldRun(arguments))
        return Tavelo::TaveloCLI::run(arguments);
    return Tavelo::TaveloDeskrigApp::run();
}
