#include "CommandRunner.h"

#include "FileManager.h"
#include "InventoryText.h"
#include "ProcessLauncher.h"
#include "SystemFacts.h"

#include <QStringDecoder>

#include <algorithm>

namespace Tavelo
{

namespace
{

constexpr int commandNotFound = 127;

const QStringList &fixedSearchPath()
{
    static const QStringList folders = {
        QStringLiteral("/opt/homebrew/bin"), QStringLiteral("/opt/homebrew/sbin"),
        QStringLiteral("/usr/local/bin"),    QStringLiteral("/usr/local/sbin"),
        QStringLiteral("/usr/bin"),          QStringLiteral("/bin"),
        QStringLiteral("/usr/sbin"),         QStringLiteral("/sbin"),
    };
    return folders;
}

/// The text, or an empty one when some of it is not UTF-8.
QString decodedWhole(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString() : text;
}

/// Decodes output as it arrives. The bytes of a character may come in two pieces; bytes that can never become a
/// character are dropped, and so are NUL characters, which have no place in a line of text.
class OutputDecoder
{
public:
    QString operator()(const QByteArray &bytes)
    {
        const QByteArray all = m_tail + bytes;
        const qsizetype whole = all.size() - unfinishedBytes(all);
        m_tail = all.mid(whole);
        QStringDecoder decoder(QStringDecoder::Utf8,
                               QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInvalidToNull);
        QString text = decoder(QByteArrayView(all).first(whole));
        return text.remove(QChar::Null);
    }

private:
    /// How many bytes at the end begin a character that the next bytes may complete.
    static qsizetype unfinishedBytes(const QByteArray &bytes)
    {
        constexpr qsizetype longestTail = 3;
        for (qsizetype count = 1; count <= std::min(longestTail, bytes.size()); ++count) {
            const auto byte = static_cast<unsigned char>(bytes.at(bytes.size() - count));
            if ((byte & 0xC0) == 0x80) // within a character
                continue;
            const int length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC2 ? 2 : 1;
            return count < length ? count : 0;
        }
        return 0;
    }

    QByteArray m_tail;
};

} // namespace

CommandRunner::CommandRunner(PlatformServices services, const AppRuntime &runtime, const OperationLog &log)
    : m_services(std::move(services)), m_runtime(runtime), m_log(log)
{
}

int CommandRunner::runCommand(const QStringList &arguments, const QString &description,
                              const QString &currentDirectory) const
{
    m_log.log(QStringLiteral("$ ") + description);
    ProcessSetup setup;
    setup.currentFolder = currentDirectory;
    setup.output = ProcessSetup::Output::merged;
    OutputDecoder decode;
    setup.onOutput = [&](const QByteArray &bytes) {
        const QStringList lines = linesOf(decode(bytes));
        for (const QString &line : lines)
            m_log.log(line);
    };
    const std::optional<ProcessResult> result = start(arguments, std::move(setup));
    if (!result) {
        m_log.log(QStringLiteral("Lỗi: không tìm thấy lệnh ") + arguments.value(0));
        return commandNotFound;
    }
    if (!result->started) {
        m_log.log(QStringLiteral("Không chạy được %1: ").arg(description) + result->error);
        return commandNotFound;
    }
    m_log.log(QStringLiteral("Hoàn tất: ") + description + QStringLiteral(" (exit %1)").arg(result->status));
    return result->status;
}

int CommandRunner::runQuiet(const QStringList &arguments) const
{
    return start(arguments, {}).value_or(ProcessResult()).status;
}

QString CommandRunner::runCapture(const QStringList &arguments) const
{
    return runCaptureStatus(arguments).output;
}

QString CommandRunner::runCaptureCombined(const QStringList &arguments) const
{
    ProcessSetup setup;
    setup.output = ProcessSetup::Output::merged;
    return decodedWhole(start(arguments, std::move(setup)).value_or(ProcessResult()).output);
}

CommandRunner::StatusAndOutput CommandRunner::runCaptureStatus(const QStringList &arguments) const
{
    ProcessSetup setup;
    setup.output = ProcessSetup::Output::standardOutput;
    const ProcessResult result = start(arguments, std::move(setup)).value_or(ProcessResult());
    return {result.status, decodedWhole(result.output)};
}

std::optional<QString> CommandRunner::commandPath(const QString &command) const
{
    if (command.isEmpty())
        return std::nullopt;
    if (command.contains(u'/')) {
        const QString path = m_runtime.expandingTilde(command);
        return m_services.files->isExecutableFile(path) ? std::optional(path) : std::nullopt;
    }
    const QStringList folders = commandEnvironment().value(QStringLiteral("PATH")).split(u':', Qt::SkipEmptyParts);
    for (const QString &folder : folders) {
        const QString path = folder + u'/' + command;
        if (m_services.files->isExecutableFile(path))
            return path;
    }
    return std::nullopt;
}

QProcessEnvironment CommandRunner::commandEnvironment() const
{
    QProcessEnvironment environment = m_services.facts->environment();
    QStringList folders = fixedSearchPath();
    const QStringList own = environment.value(QStringLiteral("PATH")).split(u':', Qt::SkipEmptyParts);
    for (const QString &folder : own) {
        if (!folders.contains(folder))
            folders.append(folder);
    }
    environment.insert(QStringLiteral("PATH"), folders.join(u':'));
    return environment;
}

std::optional<QString> CommandRunner::brewPath() const
{
    const QStringList places = {
        m_services.facts->environment().value(QStringLiteral("HOMEBREW_BREW_FILE")),
        QStringLiteral("/opt/homebrew/bin/brew"),
        QStringLiteral("/usr/local/bin/brew"),
    };
    for (const QString &place : places) {
        if (!place.isEmpty() && m_services.files->isExecutableFile(place))
            return place;
    }
    return commandPath(QStringLiteral("brew"));
}

/// Nothing if the command cannot be found.
std::optional<ProcessResult> CommandRunner::start(const QStringList &arguments, ProcessSetup setup) const
{
    const std::optional<QString> path = commandPath(arguments.value(0));
    if (!path)
        return std::nullopt;
    setup.executable = *path;
    setup.arguments = arguments.mid(1);
    setup.environment = commandEnvironment();
    return m_services.processes->run(setup);
}

} // namespace Tavelo
