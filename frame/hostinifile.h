#pragma once

#include <QString>

namespace Tallymere {

// The host's initialization file "HX1.ini" in the folder of the running executable: when it names no sample company
// ("Sample Data" in section "Companies"), the "Data" folder beside the executable is entered. A folder that cannot
// be written is left as it is.
void nameSampleCompany(const QString &executableFolder);

} // namespace Tallymere
