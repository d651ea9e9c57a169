#pragma once

/// The desktop application.
namespace Tavelo::TaveloDeskrigApp
{

/// Runs the desktop application and gives the process's exit status. This build has no window yet: it says so on
/// standard error, names the command line, and gives 1.
int run();

} // namespace Tavelo::TaveloDeskrigApp
