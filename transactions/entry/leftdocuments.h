#pragma once

#include "engine/store/answer.h"

namespace Tallymere {

class DocumentEntry;
class Prompts;

// Asks about each document of the entry's kind that its user began and never saved, as its program came to an end:
// whether to go on with it, to take its lines out, or to be asked again another time. True when the entry holds one then.
// Which these may be can have been asked before (BegunDocument::askBegun), with what else was.
bool takeUpLeft(DocumentEntry &entry, Prompts &prompts, const Engine::Answer<QList<qint64>> &askedBegun = {});

} // namespace Tallymere
