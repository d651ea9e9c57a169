#pragma once

/// The desktop application.
namespace Tavelo::TaveloDeskrigApp
{

/// Runs the desktop application until its window closes, and gives the process's exit status: 0; 1 where there is no
/// display, or the window could not be made, which standard error then says.
///
/// May end the process itself: work that still runs then, such as an install, is left to its fate, since every result
/// is stored when it arises.
int run();

} // namespace Tavelo::TaveloDeskrigApp
