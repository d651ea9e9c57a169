#pragma once

#include <QString>
#include <QtGlobal>

/// Shares of a whole as the interface shows them. A share is from 0 to 1; whatever lies outside is clamped, and what is
/// no number counts as 0.
namespace Tavelo::ProgressArithmetic
{

double clamp(double share);

/// `done` of `total`; 0 of nothing.
double share(qsizetype done, qsizetype total);

/// The whole percentage nearest to the share, halves upwards: 0 to 100.
int percent(double share);

/// The same as "63%".
QString percentText(double share);

/// The whole part of the percentage, as "66%" for two of three: nothing that is not ready reads as 100%.
QString cutPercentText(qsizetype done, qsizetype total);

/// How far an operation has come whose item at work stands at `itemShare`.
double operationShare(double itemShare, qsizetype completedItems, qsizetype totalItems);

} // namespace Tavelo::ProgressArithmetic
