#include "tests/endurance/disk.h"

#include <algorithm>

using Storage::Operation;
using Storage::Step;

namespace {

constexpr size_t sector = 512; // is written whole, or not at all

std::string folderOf(const std::string &path)
{
    const size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

void write(std::string &bytes, const Operation &operation)
{
    if (operation.step == Step::Truncate)
        return bytes.resize(operation.place);
    const size_t end = operation.place + operation.bytes.size();
    if (bytes.size() < end)
        bytes.resize(end);
    bytes.replace(operation.place, operation.bytes.size(), operation.bytes);
}

// The beginning or the end of it, from one sector of the disk on.
Operation torn(Operation operation, std::mt19937 &random)
{
    const size_t first = sector - operation.place % sector;
    if (operation.step != Step::Write || operation.bytes.size() <= first)
        return operation;
    const size_t cut = first + random() % ((operation.bytes.size() - first + sector - 1) / sector) * sector;
    if (random() % 2 == 0) {
        operation.bytes.resize(cut);
    } else {
        operation.bytes.erase(0, cut);
        operation.place += static_cast<int64_t>(cut);
    }
    return operation;
}

} // namespace

void Disk::take(const Operation &operation)
{
    switch (operation.step) {
    case Step::Create:
        m_contents.push_back({operation.place, {}, {}});
        m_pending.push_back(operation);
        break;
    case Step::Write:
    case Step::Truncate:
        m_contents[operation.file].pending.push_back(operation);
        break;
    case Step::Sync: {
        Content &content = m_contents[operation.file];
        for (const Operation &one : content.pending)
            write(content.synced, one);
        content.pending.clear();
        break;
    }
    case Step::MakeFolder:
    case Step::Rename:
    case Step::Unlink:
        m_pending.push_back(operation);
        break;
    case Step::SyncFolder: {
        const auto isElsewhere = [&](const Operation &one) {
            return folderOf(one.step == Step::Rename ? one.to : one.path) != operation.path;
        };
        const auto synced = std::stable_partition(m_pending.begin(), m_pending.end(), isElsewhere);
        std::for_each(synced, m_pending.end(), [this](const Operation &one) { change(m_names, one); });
        m_pending.erase(synced, m_pending.end());
        break;
    }
    case Step::Answered:
        break;
    }
}

void Disk::change(Names &names, const Operation &operation)
{
    if (operation.step == Step::Rename || operation.step == Step::Unlink)
        names.erase(operation.path);
    if (operation.step != Step::Unlink)
        names[operation.step == Step::Rename ? operation.to : operation.path] = operation.file;
}

std::string Disk::bytesOf(const Content &content, Kept kept, std::mt19937 &random)
{
    std::string bytes = content.synced;
    if (kept == Kept::None)
        return bytes;
    const auto tenths = random() % 11; // nearly all, nearly none, and what lies between
    for (const Operation &one : content.pending) {
        if (kept == Kept::All || random() % 10 < tenths)
            write(bytes, kept == Kept::Some && random() % 4 == 0 ? torn(one, random) : one);
    }
    return bytes;
}

Disk::Files Disk::after(Kept kept, std::mt19937 &random) const
{
    Names names = m_names;
    size_t changes = kept == Kept::All ? m_pending.size() : 0;
    if (kept == Kept::Some)
        changes = random() % (m_pending.size() + 1);
    for (size_t i = 0; i < changes; ++i)
        change(names, m_pending[i]);
    Files files;
    for (const auto &[path, file] : names) {
        const std::string folder = folderOf(path);
        const bool isReached = folder.empty() || names.contains(folder.substr(0, folder.size() - 1));
        if (file >= 0 && isReached)
            files[path] = {m_contents[file].number, bytesOf(m_contents[file], kept, random)};
    }
    return files;
}
