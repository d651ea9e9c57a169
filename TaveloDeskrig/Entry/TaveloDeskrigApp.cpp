#include "TaveloDeskrigApp.h"

#include "Console.h"
#include "DeskrigViewModel.h"
#include "DeskrigWindow.h"
#include "NetworkTransport.h"
#include "WorkPool.h"

#include <QGuiApplication>
#include <QOpenGLContext>
#include <QQuickWindow>

#include <cstdlib>
#include <memory>

namespace Tavelo::TaveloDeskrigApp
{

namespace
{

QtMessageHandler usualHandler = nullptr;

/// The library gives up on a display that does not answer with a fatal message and a core dump.
void sayThatThereIsNoDisplay(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtFatalMsg) {
        if (usualHandler && qEnvironmentVariableIsSet("QT_DEBUG_PLUGINS"))
            usualHandler(type, context, message);
        return;
    }
    Console().writeError(QStringLiteral("Tavelo Deskrig: there is no display to open the window on. See --help for the "
                                        "command line, which needs none.\n"));
    std::_Exit(EXIT_FAILURE);
}

std::unique_ptr<QGuiApplication> makeApplication()
{
    static char name[] = "TaveloDeskrig";
    static char *arguments[] = {name, nullptr};
    static int count = 1;
    usualHandler = qInstallMessageHandler(sayThatThereIsNoDisplay);
    auto application = std::make_unique<QGuiApplication>(count, arguments);
    qInstallMessageHandler(usualHandler);
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tavelo Deskrig"));
    return application;
}

/// Draws by the processor where nothing else is to be had.
void chooseRenderer()
{
    if (QQuickWindow::graphicsApi() == QSGRendererInterface::OpenGL && !QOpenGLContext().create())
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

} // namespace

int run()
{
    const std::unique_ptr<QGuiApplication> application = makeApplication();
    chooseRenderer();
    // Not on the stack: a pool that goes waits for its threads, and one of them may wait for a tool for hours.
    auto *const pool = new WorkPool;
    pool->holdBack();
    int status = EXIT_FAILURE;
    {
        DeskrigViewModel model(PlatformServices::make(), std::make_unique<NetworkTransport>(), *pool);
        const DeskrigWindow window(model, [pool] { pool->letGo(); });
        if (window.window())
            status = QGuiApplication::exec();
    }
    pool->clear();
    if (!pool->waitForDone(0))
        std::_Exit(status); // threads must not outlive what the end of the process takes down
    delete pool;
    return status;
}

} // namespace Tavelo::TaveloDeskrigApp
