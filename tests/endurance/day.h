#pragma once

#include "tests/endurance/cuts.h"

#include <QTemporaryDir>
#include <stdexcept>

// Files that commands read, outside the folder that is watched.
class Inputs
{
public:
    QString file(const QString &name, const QByteArray &content) const; // its path
private:
    QTemporaryDir m_folder;
};

struct Refusal : std::runtime_error
{
    Refusal(int exitStatus, const QString &errors)
        : std::runtime_error(errors.toStdString())
        , status(exitStatus)
    {
    }
    int status;
};

// A command on the books in a folder below the stage's own; "@" in a word stands for that. Throws a Refusal.
Stage command(const QString &books, const QStringList &words);

std::vector<Stage> firstStages(const Inputs &inputs); // new books, with two receipts posted
std::vector<Stage> laterStages(const Inputs &inputs); // the rest of what is done with them
Stage formerRelease(); // puts the books of the first release into the folder "former"
Stage hostRows(); // a place and an item of the host
