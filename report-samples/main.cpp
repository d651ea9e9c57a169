#include "FileManager.h"
#include "MacBackend.h"
#include "MainQueue.h"
#include "SampleReports.h"

#include <QDir>
#include <QGuiApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace Tavelo;

namespace
{

bool complain(const QString &text)
{
    QTextStream(stderr) << text << '\n';
    return false;
}

/// The text report of the Mac that the environment names, in every language.
bool writeTextReports(const QString &folder)
{
    const PlatformServices services = PlatformServices::make();
    const FileManager thisMachine;
    const MacBackend backend(
        services, [](const QString &) {}, [](const InstallProgressUpdate &) {});
    const QList<SystemCheck> checks = backend.systemChecks();
    const QList<InstalledMacApplication> applications = backend.installedAdditionalApplications();
    for (const AppLanguage language : AppLanguages::supported()) {
        FileError error;
        const std::optional<QString> report = backend.writeReport(checks, applications, language, &error);
        if (!report)
            return complain(error.text);
        const QString copy = folder + u"/report-"_s + rawValue(language) + u".txt"_s;
        if (!thisMachine.writeAtomically(copy, services.files->contents(*report).value_or(QByteArray()), 0644, &error))
            return complain(copy + u": "_s + error.text);
    }
    services.mainQueue->service();
    return true;
}

bool writePdfReports(const QString &folder)
{
    const FileManager thisMachine;
    const QString cache = folder + u"/branding"_s;
    for (const SampleReport &sample : sampleReports()) {
        thisMachine.remove(cache);
        if (!sample.branding.isEmpty()) {
            thisMachine.createFolder(cache);
            thisMachine.writeAtomically(cache + u"/technician-workspace.json"_s, sample.branding, 0600);
        }
        const QString path = folder + u'/' + sample.name + u".pdf"_s;
        const std::optional<QString> failure =
            MacReportPDF::write(sample.contents, path, {thisMachine, QString(), cache, sampleTime()});
        if (failure)
            return complain(path + u": "_s + *failure);
    }
    thisMachine.remove(cache);
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // it shows nothing
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 2) {
        complain(u"Usage: report-samples DIR"_s);
        return 2;
    }
    const QString folder = QDir(arguments.at(1)).absolutePath();
    FileError error;
    if (!FileManager().createFolder(folder, 0755, &error)) {
        complain(folder + u": "_s + error.text);
        return 1;
    }
    return writeTextReports(folder) && writePdfReports(folder) ? 0 : 1;
}
