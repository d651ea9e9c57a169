#pragma once

#include <QtGlobal>

namespace Tavelo
{

/// Lets through so much of a scan's progress as a person can follow: the first and the last step, every step of a small
/// scan, about 40 of a large one. To be asked from one thread at a time.
class ScanThrottle
{
public:
    /// Whether this step is to be shown. A step that is counts as the last one shown.
    bool passes(qsizetype completed, qsizetype total)
    {
        if (completed != 0 && completed != total && completed - m_lastReported < (total >= 80 ? total / 40 : 1))
            return false;
        m_lastReported = completed;
        return true;
    }

private:
    qsizetype m_lastReported = -1;
};

} // namespace Tavelo
