#include "TaveloCLI.h"
#include "TaveloDeskrigApp.h"

#include <QFile>
#include <QStringList>

int main(int argc, char *argv[])
{
    // Decoded by hand, since the route is chosen before any application object exists.
    QStringList arguments;
    for (int index = 0; index < argc; ++index)
        arguments.append(QFile::decodeName(argv[index]));
    if (Tavelo::TaveloCLI::shouldRun(arguments))
        return Tavelo::TaveloCLI::run(arguments);
    return Tavelo::TaveloDeskrigApp::run();
}
