#include "DeskrigWindow.h"

#include "DeskrigViewModel.h"
#include "FontPreparation.h"
#include "ReportFonts.h"
#include "ReportLogo.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSet>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;

void qml_register_types_Tavelo_Views();

namespace Tavelo
{

struct DeskrigWindow::Engine {
    QQmlEngine engine;
    std::unique_ptr<QObject> root;
};

namespace
{

/// Has what comes without the user's doing read out.
void announce(const QQuickWindow &window, const QString &objectName)
{
    if (auto *const item = window.findChild<QQuickItem *>(objectName)) {
        QAccessibleEvent event(item, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

/// A Mac takes the icon from the bundle, and would put this one beside the window's title.
void setIcon(QQuickWindow &window)
{
    if (QGuiApplication::platformName() != u"cocoa")
        window.setIcon(QIcon(QPixmap::fromImage(MacReportPDF::fallbackAppLogo())));
}

/// Gives a font's families to the texts that have those of an earlier one. Controls have the window's font; other texts
/// keep the one they were made with. Those of a closed dialog are found by who owns them, those of a list by where they
/// are shown.
void changeFamilies(QObject &root, const QFont &earlier, const QFont &font)
{
    QSet<const QObject *> seen;
    for (QObjectList todo{&root}; !todo.isEmpty();) {
        QObject *const object = todo.takeLast();
        if (seen.contains(object))
            continue;
        seen.insert(object);
        todo += object->children();
        const auto *const item = qobject_cast<QQuickItem *>(object);
        if (!item)
            continue;
        for (QQuickItem *const child : item->childItems())
            todo.append(child);
        if (!item->inherits("QQuickText"))
            continue;
        auto own = item->property("font").value<QFont>();
        if (own.families() != earlier.families())
            continue;
        own.setFamilies(font.families());
        own.setStyleHint(font.styleHint());
        object->setProperty("font", own);
    }
}

/// Each language writes Chinese characters in a style of its own.
void setFont(QQuickWindow &window, const QFont &font)
{
    const QFont earlier = QGuiApplication::font();
    QGuiApplication::setFont(font);
    window.setProperty("font", font);
    changeFamilies(window, earlier, font);
}

/// Calls once after the first frame, which a window that is not to be seen yet does not draw.
void callAfterFirstFrame(QQuickWindow &window, const std::function<void()> &call)
{
    constexpr std::chrono::milliseconds longest{2000};
    auto *const once = new QTimer(&window);
    once->setSingleShot(true);
    QObject::connect(once, &QTimer::timeout, once, [once, call] {
        once->deleteLater();
        call();
    });
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, once, [once] { once->start(0); }, Qt::SingleShotConnection);
    once->start(longest);
}

/// Where a view is compiled in.
QUrl view(const QString &name)
{
    return QUrl(u"qrc:/qt/qml/Tavelo/Views/%1.qml"_s.arg(name));
}

/// The views' root, not shown yet; nothing where it could not be made, which standard error then tells. Its types are
/// read beside the font's last steps, and those of the content beside the making of the rest.
std::unique_ptr<QObject> makeRoot(QQmlEngine &engine, DeskrigViewModel &model, FontPreparation &preparation)
{
    engine.addImportPath(u"qrc:/qt/qml"_s);
    // The plugins behind these need this thread, which has other things to do once it has waited for them.
    QQmlComponent modules(&engine);
    modules.setData("import QtQuick\nimport QtQuick.Layouts\nimport QtQuick.Templates\nItem {}", QUrl());
    const QUrl window = view(u"DeskrigWindow"_s);
    const QQmlComponent begun(&engine, window, QQmlComponent::Asynchronous);
    const QQmlComponent content(&engine, view(u"ContentView"_s), QQmlComponent::Asynchronous);
    const QFont font = preparation.finish();
    QGuiApplication::setFont(font); // texts ask for it before they have theirs, and would load one of the system's
    QQmlComponent component(&engine, window);
    std::unique_ptr<QObject> root(
        component.createWithInitialProperties({{u"viewModel"_s, QVariant::fromValue(&model)}, {u"font"_s, font}}));
    const QList<QQmlError> errors = component.errors();
    for (const QQmlError &error : errors)
        qWarning("%s", qPrintable(error.toString()));
    return root;
}

} // namespace

DeskrigWindow::DeskrigWindow(DeskrigViewModel &model, const std::function<void()> &onFirstFrame)
{
    FontPreparation preparation(model.language());
    m_engine = std::make_unique<Engine>();
    volatile const auto registration = &qml_register_types_Tavelo_Views; // keeps the linker from leaving it out
    Q_UNUSED(registration)
    if (QQuickStyle::name() != u"Basic")
        QQuickStyle::setStyle(u"Basic"_s);
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    m_engine->root = makeRoot(m_engine->engine, model, preparation);
    QQuickWindow *const window = this->window();
    if (!window)
        return;
    QObject::connect(&model, &DeskrigViewModel::languageChanged, window,
                     [window, &model] { setFont(*window, ReportFonts::font(model.language())); });
    QObject::connect(
        &model, &DeskrigViewModel::toastChanged, window,
        [window, &model] {
            if (model.toast().isShown())
                announce(*window, u"toast"_s);
        },
        Qt::QueuedConnection);
    // The status line may change many times at once; what it says in the end is enough. A toast tells the same in its
    // own words, so that no one is to hear both.
    auto *const status = new QTimer(window);
    status->setSingleShot(true);
    QObject::connect(status, &QTimer::timeout, window, [window, &model] {
        if (!model.toast().isShown())
            announce(*window, u"status-line"_s);
    });
    QObject::connect(&model, &DeskrigViewModel::currentActionChanged, status, qOverload<>(&QTimer::start));
    callAfterFirstFrame(*window, [window, onFirstFrame] {
        onFirstFrame();
        setIcon(*window);
    });
    window->show();
}

DeskrigWindow::~DeskrigWindow() = default;

QQuickWindow *DeskrigWindow::window() const
{
    return qobject_cast<QQuickWindow *>(m_engine->root.get());
}

} // namespace Tavelo
