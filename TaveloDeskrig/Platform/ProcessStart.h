#pragma once

#include <QStringList>

namespace Tavelo
{

/// Puts the process in order before anything else happens in it. What a parent did to its streams and signals must not
/// change what the program's work comes to.
///
/// Standard streams that are closed are opened on `/dev/null`, since the next file would take their place; a reader
/// that has gone does not end the program (SIGPIPE is ignored; children get it as usual); the end of children is told
/// as usual (SIGCHLD). To be called once, first of all, on the main thread.
void prepareProcess();

/// The arguments of `main`, program name first.
QStringList processArguments(int count, char *arguments[]);

} // namespace Tavelo
