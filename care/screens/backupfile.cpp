#include "care/screens/backupfile.h"

#include "care/texts.h"
#include "controls/windows/filechoice.h"
#include "controls/windows/screencontext.h"
#include "data/datamodule.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

QString chooseBackupFile(const ScreenContext &context, QWidget *window, const QString &title, const QString &word)
{
    const QString time = context.data.sessionTallymere().now().toString(u"yyyy-MM-dd-hhmmss"_s);
    const QString file = context.chooseFileToSave(window,
                                                  {.title = title,
                                                   .name = u"%1-%2.sqlite"_s.arg(word, time),
                                                   .kind = CareTexts::tr("Backups"),
                                                   .suffix = u"sqlite"_s,
                                                   .folder = lastFolder(context)});
    if (!file.isEmpty())
        rememberFolder(context, file);
    return file;
}

} // namespace Tallymere
