#pragma once

#include <QString>

namespace Tallymere {

class SettingsStore;

// The company whose database the settings name.
struct Company
{
    QString name; // of the organization; empty when there is none
    QString location; // folder or server, for people
    QString problem; // why the database cannot be used; empty when it can
    bool defined = false; // whether the settings name a database at all
};

// Reads the host's configuration and lets go of the database at once, so that it never stands in a module's way.
Company readCompany(const SettingsStore &settings);

// Makes a folder the company's database, in file-server mode. False when the settings cannot be written.
bool useCompanyFolder(SettingsStore &settings, const QString &folder);

// The sample company that "HX1.ini" beside the executable names, if a database is there; else empty.
QString sampleCompanyFolder(const QString &executableFolder);

} // namespace Tallymere
