#pragma once

#include "Stage.h"

#include <QObject>
#include <QPoint>
#include <QQuickItem>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace Tavelo
{

/// A test that drives the window by mouse and keyboard, each function on a Mac of its own. Any warning, of a view or of
/// anything else, fails the test.
class WindowDriver : public QObject
{
    Q_OBJECT

protected:
    /// Opens the window on the Mac, in place of one that is open. What else there is to tell is the stage's.
    template <typename... Settings>
    void open(Settings &&...settings)
    {
        m_stage.reset();
        m_stage.emplace(*m_mac, std::forward<Settings>(settings)...);
    }
    template <typename... Settings>
    void openAndSettle(Settings &&...settings)
    {
        open(std::forward<Settings>(settings)...);
        settle();
    }

    ProgramOnAMac &mac() { return *m_mac; }
    Stage &stage() { return *m_stage; }
    DeskrigViewModel &model() { return m_stage->model(); }
    QQuickWindow &window() { return m_stage->window(); }
    void settle() { m_stage->settle(); }
    void pass(int milliseconds) { m_stage->pass(milliseconds); }

    QQuickItem *find(const QString &name) { return m_stage->find(name); }
    /// What the item of that name says; "nothing" where it is not in sight.
    QString textOf(const QString &name);
    bool isEnabled(const QString &name) { return find(name)->isEnabled(); }
    /// The middle, in the window, of the item of that name, which must be in sight or come in five seconds.
    QPoint middle(const QString &name);
    /// The name of the item that the keyboard is at, or of the nearest one around it that has one.
    QString focused();

    void click(const QString &name);
    void key(Qt::Key key);
    // The same, and all that it leads to.
    void clickAndSettle(const QString &name);
    void keyAndSettle(Qt::Key key);
    /// What the system sends while a key that went down before stays down.
    void hold(Qt::Key key);
    void type(const QString &text);
    /// What Tab reaches, one after the other, until the keyboard is back where it was. `at` is called at each.
    QStringList tabRound(const std::function<void(const QString &name)> &at = {});

    void selectGroup(const QString &group);
    /// Makes installs take a while.
    void slowDown();

private Q_SLOTS:
    void init();
    void cleanup();

private: // NOLINT(readability-redundant-access-specifiers): not for moc
    std::optional<ProgramOnAMac> m_mac;
    std::optional<Stage> m_stage; // goes first
};

} // namespace Tavelo
