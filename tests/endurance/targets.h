#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// What a fuzzer, or a corpus, hands any bytes to. Whatever they are, nothing may crash, hang, or be taken for more than it is:
// what a target finds wrong ends the program.
struct FuzzTarget
{
    QString name; // the folder of its corpus as well
    void (*take)(const QByteArray &bytes);
};

const QList<FuzzTarget> &fuzzTargets();
