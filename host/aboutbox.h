#pragma once

#include "base/settingsstore.h"

#include <QDialog>

class QLabel;

namespace Tallymere {

// The host's version, and what it works with: the module, if it is loaded, and the company's database. Copies a report of that.
class AboutBox final : public QDialog
{
    Q_OBJECT

public:
    AboutBox(const SettingsStore &settings, bool moduleLoaded, QWidget *parent);

private:
    void copyReport();

    const SettingsStore &m_settings;
    const bool m_moduleLoaded;
    QLabel *m_told;
};

} // namespace Tallymere
