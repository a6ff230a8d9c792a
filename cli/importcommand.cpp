#include "base/named.h"
#include "base/plural.h"
#include "base/ruleerror.h"
#include "cli/command.h"
#include "cli/csvinput.h"
#include "cli/optionvalues.h"
#include "cli/texts.h"
#include "import/importer.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

const ImportKind &requireKind(const QString &name)
{
    if (const ImportKind *kind = findImportKind(name))
        return *kind;
    throw UsageError(Texts::tr("'import' knows no '%1', but: %2").arg(name, namesOf(importKinds())));
}

void runImport(CommandContext &context)
{
    const ImportKind &kind = requireKind(context.arguments.words().at(1));
    const QString fileName = context.arguments.words().at(2);
    const std::unique_ptr<QIODevice> file = openInput(fileName);

    ImportChoice choice{.sheet = context.arguments.value(u"sheet"_s),
                        .headRow = positive(context.arguments, u"head-row"_s, std::numeric_limits<int>::max())};
    for (const QString &name : context.arguments.value(u"except"_s).split(u',', Qt::SkipEmptyParts))
        choice.leftOut.append(name.trimmed());

    context.beginRetrying();
    std::unique_ptr<TDataModuleTallymere> data;
    context.patiently([&] { data = context.openData(); });
    ConsoleProgress progress(context.console, Texts::tr("Importing"));
    ImportResult result;
    context.patiently([&] {
        file->seek(0);
        result =
            importFile(data->databaseTallymere(), *file, kind, context.arguments.has(u"yes"_s), progress, choice);
    });
    if (!result.errors.isEmpty()) {
        complainOfRows(context.console, fileName, result.errors);
        throw RuleError(Texts::tr("Nothing was imported."));
    }
    context.console.print(
        Texts::tr("%1 imported").arg(plural(result.documents, u"%n "_s + kind.oneName, u"%n "_s + kind.name)));
}

} // namespace

Command importCommand()
{
    Command command;
    command.name = u"import"_s;
    command.words = u"KIND FILE"_s;
    command.fewestWords = command.mostWords = 2;
    command.summary = Texts::tr("brings in a spreadsheet or a CSV file, all of it or nothing");
    command.details =
        Texts::tr("KIND: %1\n\nFILE is CSV, XLSX or ODS. The header row holds field names. A number or name may "
                  "stand for a key: ItemNo, "
                  "VendorNo,\n"
                  "WarehouseName, TypeName, CurrencyName. The rows of a document are those with the same document\n"
                  "columns, one after the other. Numbers, dates and periods left empty are assigned.\n"
                  "Rows are refused by the rules of the screens, each as FILE:LINE: message.")
            .arg(namesOf(importKinds()));
    command.options = {{u"sheet"_s, Texts::tr("NAME"), Texts::tr("of a spreadsheet (default: the first one)")},
                       {u"head-row"_s, Texts::tr("NUMBER"),
                        Texts::tr("that holds the field names (default: the first with a text)")},
                       {u"except"_s, Texts::tr("COLUMNS"), Texts::tr("leaves these columns of the file out: A,B")},
                       {u"yes"_s, {}, Texts::tr("answers yes where a screen would ask")},
                       retryOption()};
    command.run = runImport;
    return command;
}

} // namespace Tallymere::Cli
