#include "ReportLogo.h"
#include "WorkspaceBranding.h"

#include <cstdlib>

using namespace Tavelo;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const WorkspaceBranding branding = MacReportPDF::workspaceBranding(bytes);
    if (branding.name.isEmpty() && !branding.logo.isNull())
        std::abort();
    MacReportPDF::decodedLogo(bytes); // what lies inside a data URL, without the base64 that hides it from the fuzzer
    return 0;
}
