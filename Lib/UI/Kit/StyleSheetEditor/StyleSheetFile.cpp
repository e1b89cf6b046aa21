#include <UI/Kit/StyleSheetEditor/StyleSheetFile.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#endif

namespace Zelkor::Vx::UI::Kit::StyleSheetFile {

namespace {

constexpr qint64 LARGEST_SIZE = 16 * 1024 * 1024; ///< bytes
const char BYTE_ORDER_MARK[] = "\xef\xbb\xbf";

const char CONTEXT[] = "StyleSheetFile";
const char NOT_READ[] = QT_TRANSLATE_NOOP("StyleSheetFile", "%1 cannot be read: %2.");
const char NOT_WRITTEN[] = QT_TRANSLATE_NOOP("StyleSheetFile", "%1 cannot be written: %2.");
const char NOT_REGULAR[] = QT_TRANSLATE_NOOP("StyleSheetFile", "%1 is not a regular file.");
const char TOO_LARGE[] = QT_TRANSLATE_NOOP("StyleSheetFile", "%1 is too large for a style sheet.");
const char NOT_UTF_8[] = QT_TRANSLATE_NOOP("StyleSheetFile", "%1 is not a text in UTF-8.");

// Reading a pipe blocks, reading a device may never end, and saving would replace either by a regular file.
bool IsSpecial(const QString& fileName)
{
    const QFileInfo info(fileName);
    return info.exists() && !info.isFile();
}

QByteArray Encode(const Contents& contents)
{
    return (contents.hasByteOrderMark ? BYTE_ORDER_MARK : "") + contents.text.toUtf8();
}

// On a full disk, write() first succeeds partially and fails with the next call, which a buffered file does not make.
bool WriteAll(QIODevice& file, const QByteArray& bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 count = file.write(bytes.constData() + written, bytes.size() - written);
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace

QString Error::describe() const
{
    const QString sentence = QCoreApplication::translate(CONTEXT, text);
    return reason.isEmpty() ? sentence.arg(fileName) : sentence.arg(fileName, reason);
}

std::optional<Contents> Read(const QString& fileName, Error& error)
{
    const auto fail = [&](const char* text, const QString& reason = {}) {
        error = {text, fileName, reason};
        return std::nullopt;
    };
    if (IsSpecial(fileName))
        return fail(NOT_REGULAR);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return fail(NOT_READ, file.errorString());
#ifdef Q_OS_UNIX
    // Some regular files block, such as the kernel log.
    fcntl(file.handle(), F_SETFL, O_NONBLOCK);
#endif
    // Reads one byte more than allowed to detect larger files, because some file systems report no size.
    const QByteArray bytes = file.read(LARGEST_SIZE + 1);
    if (file.error() != QFileDevice::NoError)
        return fail(NOT_READ, file.errorString());
    if (bytes.size() > LARGEST_SIZE)
        return fail(TOO_LARGE);
    // Skips the byte order mark.
    const Contents contents{QString::fromUtf8(bytes), bytes.startsWith(BYTE_ORDER_MARK)};
    // Saving would lose bytes that could not be decoded.
    if (Encode(contents) != bytes || contents.text.contains(QChar::Null))
        return fail(NOT_UTF_8);
    return contents;
}

// Without the fallback of QSaveFile to writing in place, which truncates the file first and loses it on a full disk.
bool Write(const QString& fileName, const Contents& contents, Error& error)
{
    if (IsSpecial(fileName)) {
        error = {NOT_REGULAR, fileName, {}};
        return false;
    }
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && WriteAll(file, Encode(contents)) && file.commit())
        return true;
    error = {NOT_WRITTEN, fileName, file.errorString()};
    return false;
}

} // namespace Zelkor::Vx::UI::Kit::StyleSheetFile
