#pragma once

#include <QString>

// Makes the tables of the host in a folder.
void makeCompany(const QString &folder, const QString &organization);
