#pragma once

#include "controls/windows/screencontext.h"
#include "import/imported.h"

#include <QHash>

class QWidget;

namespace Tallymere {

class ImportPlan;

// Brings files in from the lists, and takes back what was brought in last, by its kind, as long as the program runs.
class ImportDesk
{
public:
    explicit ImportDesk(ScreenContext &context)
        : m_context(context)
    {
    }

    // Over a window. Without a file the user names one. True when something was brought in.
    bool import(const QString &kind, QString file, QWidget *window);
    bool takeBack(const QString &kind, QWidget *window);
    // All records of the kind as a sheet that can be brought in again, under a name that the user chooses; the list's caption
    // is proposed.
    void saveForImport(const QString &kind, const QString &caption, QWidget *window) const;

private:
    QString chooseFile(QWidget *window) const;

    ScreenContext &m_context;
    QHash<QString, Imported> m_imported; // by kind
};

} // namespace Tallymere
