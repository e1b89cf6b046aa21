#include <UI/Kit/StyleSheetFile.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextCodec>

namespace StyleSheetFile {

namespace {

constexpr qint64 LARGEST_SIZE = 16 * 1024 * 1024; ///< bytes; no sheet comes near it
constexpr int UTF_8 = 106;                        ///< the number that the codec is known by

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StyleSheetFile)
};

} // namespace

std::optional<QString> Read(const QString& fileName, QString& error)
{
    QFile file(fileName);
    if (QFileInfo(fileName).isDir() || !file.open(QIODevice::ReadOnly)) {
        const QString why = QFileInfo(fileName).isDir() ? Texts::tr("it is a folder") : file.errorString();
        error = Texts::tr("%1 cannot be read: %2.").arg(fileName, why);
        return std::nullopt;
    }
    // One more than is allowed tells a larger one, also where a file has no size.
    const QByteArray bytes = file.read(LARGEST_SIZE + 1);
    if (bytes.size() > LARGEST_SIZE) {
        error = Texts::tr("%1 is too large for a style sheet.").arg(fileName);
        return std::nullopt;
    }
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForMib(UTF_8)->toUnicode(bytes.constData(), bytes.size(), &state);
    // Saved again, it would lose what could not be read.
    if (state.invalidChars > 0 || state.remainingChars > 0 || text.contains(QChar::Null)) {
        error = Texts::tr("%1 is not a text in UTF-8.").arg(fileName);
        return std::nullopt;
    }
    return text;
}

bool Write(const QString& fileName, const QString& text, QString& error)
{
    QSaveFile file(fileName);
    file.setDirectWriteFallback(true);
    const QByteArray bytes = text.toUtf8();
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    error = Texts::tr("%1 cannot be written: %2.").arg(fileName, file.errorString());
    return false;
}

} // namespace StyleSheetFile
