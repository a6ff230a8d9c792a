#pragma once

#include "controls/screens/recordopener.h"

#include <functional>
#include <QList>

namespace Tallymere {

class DocumentListScreen;
struct DocumentKind;

// A kind of document with its screens.
struct DocumentScreens
{
    const DocumentKind &kind;
    RecordScreens::Make makeDocument;
    std::function<DocumentListScreen *(ScreenContext &, QWidget *parent)> makeList;
};

const QList<DocumentScreens> &documentScreens();

// What a RecordOpener takes to open the kind's documents.
RecordScreens recordScreens(const DocumentKind &kind);

} // namespace Tallymere
