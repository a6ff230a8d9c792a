#include "frame/hostinifile.h"

#include "base/initfile.h"
#include "base/trace.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

void nameSampleCompany(const QString &executableFolder)
{
    const InitFile file(hostInitFile(executableFolder));
    if (!file.value(Settings::SampleData).isEmpty())
        return;
    if (!file.setValue(Settings::SampleData, executableFolder + "/Data"_L1))
        qCDebug(trace) << "HX1.ini in" << executableFolder << "cannot be written";
}

} // namespace Tallymere
