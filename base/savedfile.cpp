#include "base/savedfile.h"

#include "base/ruleerror.h"
#include "base/texts.h"

#include <QDir>
#include <QSaveFile>

namespace Tallymere {

void saveFile(const QString &fileName, const std::function<void(QIODevice &)> &write)
{
    QSaveFile file(fileName);
    const auto refuse = [&] {
        throw RuleError(BaseTexts::tr("Unable to save '%1'...\n%2")
                            .arg(QDir::toNativeSeparators(fileName), file.errorString()));
    };
    if (!file.open(QIODevice::WriteOnly))
        refuse();
    try {
        write(file);
    } catch (const RuleError &) {
        if (file.error() == QFileDevice::NoError)
            throw;
        refuse();
    }
    if (!file.flush() || !file.commit()) // which does not tell that the last block was not written whole
        refuse();
}

} // namespace Tallymere
