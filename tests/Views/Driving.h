#pragma once

#include "Stage.h"

#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>

namespace Tavelo
{

/// Has any warning fail the running test.
void failOnWarnings();

/// The middle of the item of that name, which must be in sight, in the window.
QPoint middle(Stage &stage, const QString &name);
/// A click there.
void click(Stage &stage, const QString &name);
void key(Stage &stage, Qt::Key key);
/// What the system sends while a key that went down before stays down.
void hold(Stage &stage, Qt::Key key);
void type(Stage &stage, const QString &text);

/// The name of the item that the keyboard is at, or of the nearest one around it that has one.
QString focused(Stage &stage);
/// What Tab reaches, one after the other, until the keyboard is back where it was. `at` is called at each.
QStringList tabRound(Stage &stage, const std::function<void(const QString &name)> &at = {});

bool isEnabled(Stage &stage, const QString &name);
QString status(Stage &stage);

/// Makes installs take a while.
void slowDown(const ProgramOnAMac &mac);

} // namespace Tavelo
