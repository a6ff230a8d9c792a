#include "import/screens/importdesk.h"

#include "base/plural.h"
#include "base/savedfile.h"
#include "base/xlsxwriter.h"
#include "controls/screens/besidework.h"
#include "controls/windows/filechoice.h"
#include "data/datamodule.h"
#include "data/lastchoices.h"
#include "import/importablerows.h"
#include "import/importplan.h"
#include "import/screens/importscreen.h"
#include "import/texts.h"

#include <optional>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// What headings stood for, by the kind of file.
class HeadingMemory
{
public:
    HeadingMemory(ScreenContext &context, const QString &kind)
        : m_screen("frmImport/"_L1 + kind)
        , m_choices(m_screen, context.data, context.settings)
    {
    }

    ImportPlan::Memory read() const
    {
        ImportPlan::Memory memory;
        const QJsonArray kept = m_choices.read().list(Settings::ImportedHeadings);
        for (const auto &pair : kept)
            memory.insert(pair[0].toString(), pair[1].toString());
        return memory;
    }

    void keep(const ImportPlan::Memory &memory) const
    {
        QJsonArray kept;
        for (auto pair = memory.cbegin(); pair != memory.cend(); ++pair)
            kept.append(QJsonArray{pair.key(), pair.value()});
        Choices choices;
        choices.setList(Settings::ImportedHeadings, kept);
        m_choices.keep(choices);
    }

private:
    const QString m_screen;
    const LastChoices m_choices;
};

} // namespace

QString ImportDesk::chooseFile(QWidget *window) const
{
    const QString file = QFileDialog::getOpenFileName(window, ImportTexts::tr("Import"), lastFolder(m_context),
                                                      ImportTexts::tr("Spreadsheets and CSV files")
                                                          + u" (*.xlsx *.xlsm *.ods *.csv *.txt);;"_s
                                                          + ImportTexts::tr("All files") + u" (*)"_s);
    if (!file.isEmpty())
        rememberFolder(m_context, file);
    return file;
}

bool ImportDesk::import(const QString &kind, QString file, QWidget *window)
{
    if (file.isEmpty())
        file = chooseFile(window);
    if (file.isEmpty())
        return false;
    const HeadingMemory headings(m_context, kind);
    std::optional<ImportPlan> plan;
    workBeside(window, ImportTexts::tr("Reading %1").arg(QFileInfo(file).fileName()),
               [&, memory = headings.read()](Progress &progress) {
                   plan.emplace(*findImportKind(kind), file, memory, &progress);
               });
    TfrmImport dialog(m_context, std::move(*plan), window);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    headings.keep(dialog.plan().memory());
    m_imported.insert(kind, dialog.imported());
    const qint64 count = dialog.imported().count();
    m_context.prompts.inform(dialog.plan().kind().hasLines()
                                 ? plural(count, ImportTexts::tr("%n document was imported."),
                                          ImportTexts::tr("%n documents were imported."))
                                 : plural(count, ImportTexts::tr("%n record was imported."),
                                          ImportTexts::tr("%n records were imported.")));
    return true;
}

void ImportDesk::saveForImport(const QString &kind, const QString &caption, QWidget *window) const
{
    const FileChoice choice{ImportTexts::tr("Save for an Import"), caption + ".xlsx"_L1,
                            ImportTexts::tr("XLSX files"), u"xlsx"_s};
    const QString saved = saveToChosenFile(m_context, window, choice, [&](const QString &file) {
        workBeside(window, ImportTexts::tr("Saving %1").arg(QDir::toNativeSeparators(file)),
                   m_context.data.databaseTallymere(), [&](Engine::Database &database, Progress &progress) {
                       saveFile(file, [&](QIODevice &device) {
                           XlsxWriter writer(device, caption);
                           writeImportable(database, *findImportKind(kind), writer, progress);
                       });
                   });
    });
    if (!saved.isEmpty())
        m_context.prompts.inform(ImportTexts::tr("Saved as %1.").arg(QDir::toNativeSeparators(saved)));
}

bool ImportDesk::takeBack(const QString &kind, QWidget *window)
{
    const Imported imported = m_imported.value(kind);
    if (imported.isEmpty()) {
        m_context.prompts.inform(
            ImportTexts::tr("Nothing has been imported into this list since the program was started."));
        return false;
    }
    const QString question = plural(imported.count(), ImportTexts::tr("Take back the %n record that was imported?"),
                                    ImportTexts::tr("Take back the %n records that were imported?"));
    if (!m_context.prompts.confirm(Question::Confirm, question))
        return false;
    workBeside(window, ImportTexts::tr("Taking back the import"), m_context.data.databaseTallymere(),
               [&](Engine::Database &database, Progress &progress) { imported.takeBack(database, progress); });
    m_imported.remove(kind);
    return true;
}

} // namespace Tallymere
