#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Stands between this program, its libraries included, and the files below one folder: its functions take the places of
// the system's. What is done to the files is recorded in order, and the call that is named fails.
namespace Storage {

enum class Step { Create, Write, Truncate, Sync, MakeFolder, SyncFolder, Rename, Unlink, Answered };

struct Operation
{
    Step step;
    int file = -1; // counted from 0 in the order of creation
    std::string path; // below the folder; what Answered stands for
    std::string to; // of a Rename
    int64_t place =
        0; // of a Write; the length of a Truncate; of a Create the number that the system gives the file
    std::string bytes;
};

// From now on. The folder must be empty, so that every file is known from its first byte.
void record(const std::string &folder);
void answered(const std::string &what); // between two operations
const std::vector<Operation> &recorded();
void dropSyncs(bool drop); // they are neither recorded nor done any more

enum class Call { Open, Write, Sync, Lock, Name }; // Name: making, renaming and removing names of files and folders
struct Fault
{
    Call call;
    int number; // which call fails, from 1 on
    int error; // of the system
    bool stays = false; // and every one after it
};
void watch(const std::string &folder, const Fault &fault); // counts anew; records nothing
int calls(); // of the fault's kind since then
void rest(); // no fault and no record any more

} // namespace Storage
