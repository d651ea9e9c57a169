#include "CommandLineApplication.h"

namespace Tavelo
{

CommandLineApplication::CommandLineApplication()
{
    static char name[] = "TaveloDeskrig";
    static char *arguments[] = {name, nullptr};
    static int count = 1;
    // Where no UTF-8 locale is set, the library chooses one by itself and says so on standard error. That is what is
    // wanted, and nothing that a technician needs to read.
    const QtMessageHandler usual =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    m_application = std::make_unique<QCoreApplication>(count, arguments);
    qInstallMessageHandler(usual);
}

} // namespace Tavelo
