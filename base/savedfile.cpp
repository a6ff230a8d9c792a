#include "base/savedfile.h"

#include "base/specialfile.h"
#include "base/texts.h"
#include "engine/store/platform.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace Tallymere {

namespace {

[[noreturn]] void refuse(const QString &fileName, const QString &reason)
{
    throw SaveError(BaseTexts::tr("Unable to save '%1'...\n%2").arg(QDir::toNativeSeparators(fileName), reason));
}

void writeTo(QFileDevice &file, const QString &fileName, const std::function<void(QIODevice &)> &write)
{
    try {
        write(file);
    } catch (const RuleError &) {
        if (file.error() == QFileDevice::NoError)
            throw;
        refuse(fileName, reasonOfShortWrite(file));
    }
    if (!file.flush()) // which does not tell that the last block was not written whole
        refuse(fileName, reasonOfShortWrite(file));
    if (file.error() != QFileDevice::NoError)
        refuse(fileName, file.errorString());
}

void replaceFile(const QString &path, const QString &fileName, const std::function<void(QIODevice &)> &write)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        refuse(fileName, file.errorString());
    writeTo(file, fileName, write);
    if (!file.commit())
        refuse(fileName, file.errorString());
    Engine::syncFolder(QFileInfo(path).absolutePath());
}

void writeInto(const QString &fileName, const std::function<void(QIODevice &)> &write)
{
    const QuietPipes quiet;
    QFile file;
    if (const QString reason = openSpecialFile(fileName, file); !reason.isEmpty())
        refuse(fileName, reason);
    writeTo(file, fileName, write);
}

} // namespace

void saveFile(const QString &fileName, const std::function<void(QIODevice &)> &write)
{
    const QFileInfo there(fileName);
    if (!there.exists() || there.isDir())
        return replaceFile(fileName, fileName, write);
    // Links stay: what they lead to is replaced. An open file that has no name any more can only be written into.
    const QString path = there.canonicalFilePath();
    if (there.isFile() && !path.isEmpty())
        return replaceFile(path, fileName, write);
    writeInto(fileName, write);
}

QString reasonOfShortWrite(QIODevice &device)
{
    if (!device.isOpen())
        return device.errorString();
    device.write("\n", 1);
    if (auto *file = qobject_cast<QFileDevice *>(&device))
        file->flush();
    return device.errorString();
}

} // namespace Tallymere
