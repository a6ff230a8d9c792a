#pragma once

#include <memory>
#include <QByteArray>
#include <QIODevice>
#include <QString>

struct zip;
struct zip_file;

namespace Tallymere {

// One part of an archive, unpacked while it is read. What goes wrong ends it, and stands in fault().
class ZipPart final : public QIODevice
{
    Q_OBJECT

public:
    explicit ZipPart(zip_file *file);
    ~ZipPart() override;

    bool isSequential() const override { return true; }
    const QString &fault() const { return m_fault; } // empty while there is none
    // What is read from now on counts as one piece, of which there must not be more than a cell may hold.
    void beginPiece() { m_piece = 0; }

    static constexpr qint64 mostUnpacked = qint64(2) * 1024 * 1024 * 1024;
    static constexpr qint64 longestPiece = qint64(16) * 1024 * 1024;
    static QString tooLong(); // what is said of a longer one

protected:
    qint64 readData(char *data, qint64 size) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    zip_file *m_file;
    bool isCrowded(const char *data, qint64 size);

    qint64 m_unpacked = 0;
    qint64 m_piece = 0;
    bool m_inTag = false;
    int m_assignments = 0; // in the tag, as an attribute has one
    QString m_fault;
};

// A packed file in memory, of which no more is ever unpacked than a spreadsheet can be expected to hold, whatever it says
// of its own size. Throws ReadFault.
class ZipArchive
{
public:
    explicit ZipArchive(QByteArray packed);
    ~ZipArchive();
    ZipArchive(const ZipArchive &) = delete;
    ZipArchive &operator=(const ZipArchive &) = delete;

    bool has(const QString &name) const;
    std::unique_ptr<ZipPart> open(const QString &name);
    QByteArray content(const QString &name, qint64 most); // of a small part, its beginning

private:
    const QByteArray m_packed; // the archive reads from it
    zip *m_archive = nullptr;
};

} // namespace Tallymere
