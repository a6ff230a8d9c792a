#pragma once

#include <QString>

// The folder that holds this test program's settings instead of the user's, whoever starts it.
QString privateSettingsFolder();

// Makes the tables of the host in a folder.
void makeCompany(const QString &folder, const QString &organization);
