#include "WatchedViewModel.h"

#include "FileManager.h"
#include "MainQueue.h"

#include <QCoreApplication>
#include <QMetaProperty>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

QString shown(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<ToastMessage>())
        return value.toString();
    const auto toast = value.value<ToastMessage>();
    const QString kind = QVariant::fromValue(toast.kind).toString();
    return toast.isShown() ? kind + u": "_s + toast.text : u"none"_s;
}

} // namespace

SmallMac::SmallMac(const QByteArray &allowed)
{
    environment.insert(u"TAVELO_SUPABASE_URL"_s, u"https://cloud.example"_s);
    environment.insert(u"TAVELO_SUPABASE_ANON_KEY"_s, u"key"_s);
    write(home() + u"/Library/Caches/tavelo-deskrig/business-policy.json"_s,
          R"({"policies": [{"policy": {"allowed_item_ids": [)" + allowed + "]}}]}");
}

GatedLauncher::GatedLauncher(const PlatformServices &services, const QString &tool)
    : ProcessLauncher(services.files->root(), services.mainQueue), m_tool(tool), m_mainQueue(services.mainQueue)
{
}

ProcessResult GatedLauncher::run(const ProcessSetup &setup) const
{
    if (m_mainQueue->isMainThread())
        ++startedOnMainThread;
    if (!m_tool.isEmpty() && setup.executable.endsWith(m_tool)) {
        ++arrived;
        m_gate.tryAcquire(1, 20000); // a test that has failed must end
    }
    return ProcessLauncher::run(setup);
}

WatchedViewModel::WatchedViewModel(PlatformServices services, const QString &gated,
                                   std::unique_ptr<HttpTransport> transport)
    : m_launcher(std::make_shared<GatedLauncher>(services, gated)),
      m_network(dynamic_cast<HeldTransport *>(transport.get())), m_services(std::move(services))
{
    m_services.processes = m_launcher;
    m_services.clock = m_clock;
    m_model = std::make_unique<DeskrigViewModel>(m_services, std::move(transport), m_pool);
    watch();
}

WatchedViewModel::~WatchedViewModel()
{
    m_launcher->letPass(100); // also where a check has failed
    m_model.reset();
    m_pool.waitForDone();
}

void WatchedViewModel::settle()
{
    do {
        QCoreApplication::processEvents();
    } while (!m_pool.waitForDone(5));
    QCoreApplication::processEvents();
    QCoreApplication::processEvents(); // what the last ones have queued
}

QStringList WatchedViewModel::settled()
{
    m_launcher->letPass(100);
    settle();
    return take();
}

void WatchedViewModel::watch()
{
    const QMetaObject &fields = DeskrigViewModel::staticMetaObject;
    const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("fieldChanged()"));
    for (int index = fields.propertyOffset(); index < fields.propertyCount(); ++index) {
        const QMetaProperty field = fields.property(index);
        if (field.hasNotifySignal() && field.isStored())
            connect(m_model.get(), field.notifySignal(), this, slot);
    }
    DeskrigViewModel *const model = m_model.get();
    connect(model, &DeskrigViewModel::statusesChanged, this, [this, model] {
        QStringList changes;
        for (const AppItem &item : model->catalogItems()) {
            const InstallStatus status = model->statuses().value(item.id);
            if (m_statuses.value(item.id) != status)
                changes.append(item.id + u' ' + rawValue(status));
        }
        m_statuses = model->statuses();
        note(u"statuses"_s, changes.join(u", "_s));
    });
    connect(model, &DeskrigViewModel::activeSheetChanged, this,
            [this, model] { note(u"activeSheet"_s, model->activeSheet().id()); });
    connect(model, &DeskrigViewModel::pendingUninstallChanged, this,
            [this, model] { note(u"pendingUninstall"_s, model->pendingUninstall().value_or(AppItem()).id); });
    connect(model, &DeskrigViewModel::reportSnapshotDateChanged, this,
            [this, model] { note(u"reportSnapshotDate"_s, model->reportSnapshotDate().toString(Qt::ISODateWithMs)); });
    connect(model, &DeskrigViewModel::reportProfileChanged, this,
            [this, model] { note(u"reportProfile"_s, QString::fromUtf8(model->reportProfile().json())); });
    connect(model, &DeskrigViewModel::catalogItemsChanged, this,
            [this, model] { note(u"catalogItems"_s, QString::number(model->catalogItems().size())); });
    connect(model->reportApplications(), &QAbstractItemModel::modelReset, this, [this, model] {
        note(u"reportApplications"_s, QString::number(model->reportApplications()->records().size()));
    });
    connect(model->latestChecks(), &QAbstractItemModel::modelReset, this,
            [this, model] { note(u"latestChecks"_s, QString::number(model->latestChecks()->checks().size())); });
    const QString logFile = model->logPath();
    connect(model->logLines(), &QAbstractItemModel::rowsInserted, this, [this, model, logFile] {
        const QString line = model->logLines()->lines().constLast();
        if (!m_services.files->contents(logFile).value_or(QByteArray()).contains(line.toUtf8() + '\n'))
            m_transcript.append(u"log: "_s + line.section(u"] "_s, 1));
    });
    m_statuses = model->statuses();
}

void WatchedViewModel::fieldChanged()
{
    const QMetaObject &fields = DeskrigViewModel::staticMetaObject;
    for (int index = fields.propertyOffset(); index < fields.propertyCount(); ++index) {
        const QMetaProperty field = fields.property(index);
        if (field.notifySignalIndex() == senderSignalIndex() && field.hasNotifySignal() && field.isStored())
            note(QString::fromLatin1(field.name()), shown(field.read(m_model.get())));
    }
}

void WatchedViewModel::note(const QString &field, const QString &value)
{
    // A text of many lines is another test's business.
    m_transcript.append(field + u" = "_s + (value.contains(u'\n') ? value.section(u'\n', 0, 0) + u" …"_s : value));
}

} // namespace Tavelo
