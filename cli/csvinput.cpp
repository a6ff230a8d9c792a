#include "cli/csvinput.h"

#include "base/plural.h"
#include "base/ruleerror.h"
#include "cli/console.h"
#include "cli/texts.h"

#include <QBuffer>
#include <QFile>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

constexpr size_t mostErrorsShown = 100;

} // namespace

std::unique_ptr<QIODevice> openInput(const QString &fileName)
{
    auto file = std::make_unique<QFile>(fileName);
    if (!file->open(QIODevice::ReadOnly))
        throw RuleError(Texts::tr("The file %1 could not be read: %2").arg(fileName, file->errorString()));
    if (!file->isSequential())
        return file;
    auto piped = std::make_unique<QBuffer>();
    piped->setData(file->readAll());
    piped->open(QIODevice::ReadOnly);
    return piped;
}

void complainOfRows(Console &console, const QString &fileName, const ImportErrors &errors)
{
    const std::vector<ImportErrors::Error> all = errors.inFileOrder();
    const QString sheet = errors.sheet().isEmpty() ? QString() : Texts::tr("Sheet '%1': ").arg(errors.sheet());
    for (size_t i = 0; i < std::min(all.size(), mostErrorsShown); ++i)
        console.complain(
            onOneLine(u"%1:%2: %3"_s.arg(fileName, QString::number(all[i].line), sheet + all[i].message)));
    if (all.size() > mostErrorsShown)
        console.complain(plural(static_cast<qint64>(all.size() - mostErrorsShown), Texts::tr("%1: %n more error"),
                                Texts::tr("%1: %n more errors"))
                             .arg(fileName));
}

} // namespace Tallymere::Cli
