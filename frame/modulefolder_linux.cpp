#include "frame/modulefolder.h"

#include <dlfcn.h>
#include <QFile>
#include <QFileInfo>

namespace Tallymere {

QString moduleFolder()
{
    static const int here = 0;
    Dl_info found{};
    if (!dladdr(&here, &found) || !found.dli_fname)
        return {};
    return QFileInfo(QFile::decodeName(found.dli_fname)).canonicalPath();
}

} // namespace Tallymere
