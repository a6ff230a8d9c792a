#pragma once

#include <QString>

class QWidget;

namespace Tallymere {

struct ScreenContext;

// Lets the user name the file of a backup; proposed is the word with the time. Empty when he has given up. There is somebody
// to ask (ScreenContext::chooseFileToSave).
QString chooseBackupFile(const ScreenContext &context, QWidget *window, const QString &title, const QString &word);

} // namespace Tallymere
