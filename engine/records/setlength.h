#pragma once

#include <QtGlobal>
#include <vector>

namespace Engine {

// How long a set is that is read in parts: its rows up to the key that was the highest one when they were counted. Where its order
// is that of another table, the rows to which the same is looked up stand together there. What others delete or move to another
// place meanwhile is noticed when the set is read anew.
struct SetLength
{
    struct Group
    {
        qint64 key = 0; // by which it is looked up
        bool isOfNull = false; // of the rows that have none
        int first = 0; // index in the set
        int count = 0;
    };

    int count = 0;
    qint64 lastKey = 0;
    std::vector<Group> groups = {}; // in the order of the set; none where an index has the whole order
};

} // namespace Engine
