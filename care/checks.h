#pragma once

namespace Tallymere {

class Inspection;

// One check each, in a file of its own. They tell what they find; where something cannot be read they throw what the
// engine throws.

void checkStructure(Inspection &inspection); // the file, the tables and their indexes
void checkValues(Inspection &inspection); // what no screen lets in: texts too long, keys left empty, no numbers
void checkNumbers(Inspection &inspection); // numbers that users see, given twice
void checkCounters(Inspection &inspection); // counters that are behind their tables
void checkReferences(Inspection &inspection); // what names something that is gone
void checkDocuments(Inspection &inspection); // documents, their lines and their history
void checkBalances(
    Inspection &inspection); // balances against the history; after the documents, which tell of doubts

} // namespace Tallymere
