#pragma once

#include "tests/endurance/storage.h"

#include <map>
#include <random>

// What a disk holds of the recorded operations. What was synced stays; what was not may be there or not when the power
// goes, piece by piece and in any order. A folder keeps the order in which its names changed.
class Disk
{
public:
    struct File
    {
        int64_t number = 0; // that the system gave it
        std::string bytes;
    };
    using Files = std::map<std::string, File>; // by their paths

    // What is kept of what was not synced.
    enum class Kept { All, None, Some };

    void take(const Storage::Operation &operation);
    Files after(Kept kept, std::mt19937 &random) const;

private:
    struct Content
    {
        int64_t number;
        std::string synced;
        std::vector<Storage::Operation> pending;
    };
    using Names = std::map<std::string, int>; // of the contents; of a folder -1

    static void change(Names &names, const Storage::Operation &operation);
    static std::string bytesOf(const Content &content, Kept kept, std::mt19937 &random);

    std::vector<Content> m_contents;
    Names m_names; // synced
    std::vector<Storage::Operation> m_pending; // of names
};
