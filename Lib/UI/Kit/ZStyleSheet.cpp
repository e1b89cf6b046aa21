#include <UI/Kit/ZStyleSheet.h>

#include <UI/Common/MirroredStyle.h>
#include <UI/Kit/Internal/SheetStyle.h>
#include <UI/Kit/Internal/SystemColorScheme.h>
#include <UI/Kit/StyleSheetEditor/StyleSheetFile.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIconEngine>
#include <QMetaEnum>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPointer>
#include <QRegularExpression>
#include <QUuid>

using Zelkor::Vx::UI::Kit::SheetStyle;
using Zelkor::Vx::UI::Kit::SystemColorScheme;

namespace {

const QString SEARCH_PATH = QStringLiteral("vxstyle");

int appliedSheets = 0;     ///< counts calls of apply(); icons loaded before the last one are out of date
QString currentIconFolder; ///< of the sheet applied last
QPointer<SystemColorScheme> systemColorScheme; ///< while the sheet follows it

// Qt falls back to the current folder for files that a search path lacks, for instance icons for dense screens. Where
// that folder holds files with such names, the sheet uses a search path with a name that no file has.
QString WithoutFilesOfCurrentFolder(const QString& text)
{
    const QString prefix = SEARCH_PATH + ":";
    if (QDir::current().entryList({prefix + "*"}).isEmpty())
        return text;
    const QString path = SEARCH_PATH + QUuid::createUuid().toString(QUuid::Id128);
    QDir::setSearchPaths(path, {currentIconFolder});
    return QString(text).replace(prefix, path + ":");
}

// Sets the colours of the sheet's rules for QPalette. Returns whether there are any.
bool ReadPalette(const QString& text, QPalette& palette)
{
    static const QRegularExpression RULE("\\bQPalette(:disabled)?\\s*\\{([^}]*)\\}");
    static const QRegularExpression COLOR("qproperty-(\\w+)\\s*:\\s*([^;]*[^;\\s])");
    static const QRegularExpression COMMENT("/\\*.*?\\*/", QRegularExpression::DotMatchesEverythingOption);
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    bool found = false;
    for (auto rules = RULE.globalMatch(QString(text).remove(COMMENT)); rules.hasNext();) {
        const auto rule = rules.next();
        const auto group = rule.captured(1).isEmpty() ? QPalette::All : QPalette::Disabled;
        for (auto colors = COLOR.globalMatch(rule.captured(2)); colors.hasNext();) {
            const auto color = colors.next();
            bool isRole = false;
            const int role = roles.keyToValue(color.captured(1).toLatin1(), &isRole);
            if (!isRole)
                continue;
            const QColor value(color.captured(2));
            if (value.isValid()) {
                palette.setColor(group, QPalette::ColorRole(role), value);
                found = true;
            } else {
                qWarning("ZStyleSheet: %s is neither #rrggbb nor the name of a colour",
                         qUtf8Printable(color.captured()));
            }
        }
    }
    return found;
}

// Style sheets do not reach links, placeholders and some other colours.
void ApplyPalette(const QString& text)
{
    static bool isFromSheet = false;
    QPalette palette = QApplication::style()->standardPalette();
    const bool wasFromSheet = isFromSheet;
    isFromSheet = ReadPalette(text, palette);
    if (isFromSheet || wasFromSheet)
        QApplication::setPalette(palette);
}

// Keeps the style of an earlier sheet: QApplication::setStyle() deletes the style that the widgets in the stack are
// using, such as a combo box that previews a sheet.
void UseSheetStyle()
{
    static QPointer<SheetStyle> style;
    if (style)
        return;
    style = new SheetStyle(&ZStyleSheet::icon);
    // With a sheet, QApplication::setStyle() can leave widgets with a style that is deleted.
    qApp->setStyleSheet(QString());
    QApplication::setStyle(style);
}

void Apply(const ZStyleSheet& sheet)
{
    // An empty path is the current folder to QDir.
    currentIconFolder = sheet.iconFolder.isEmpty() ? QString() : QDir(sheet.iconFolder).absolutePath();
    QDir::setSearchPaths(SEARCH_PATH, currentIconFolder.isEmpty() ? QStringList() : QStringList(currentIconFolder));
    const int number = ++appliedSheets;
    Zelkor::Vx::UI::Common::FollowLayoutDirection();
    UseSheetStyle();
    ApplyPalette(sheet.text);
    // A widget may apply another sheet when its style or palette changes. The last one is in effect.
    if (number != appliedSheets)
        return;
    qApp->setStyleSheet(WithoutFilesOfCurrentFolder(sheet.text));
}

// Returns a null icon if the folder lacks it.
QIcon LoadTinted(const QString& folder, const QString& name, const QString& tint)
{
    QIcon icon;
    const auto add = [&](const QString& variant, QIcon::Mode mode) {
        const QString file = folder + '/' + name + variant + ".svg";
        if (!folder.isEmpty() && QFile::exists(file))
            icon.addFile(file, QSize(), mode);
    };
    add(tint, QIcon::Normal);
    add("-disabled", QIcon::Disabled);
    return icon;
}

// An icon of the sheet applied last, so that widgets keep theirs when another sheet is applied.
class TintedIconEngine : public QIconEngine
{
public:
    TintedIconEngine(QString name, QString tint) : name(std::move(name)), tint(std::move(tint)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        Current().paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Current().pixmap(size, mode, state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return Current().actualSize(size, mode, state);
    }

    QIconEngine* clone() const override { return new TintedIconEngine(*this); }

private:
    const QIcon& Current()
    {
        if (loadedFor != appliedSheets) {
            icon = LoadTinted(currentIconFolder, name, tint);
            loadedFor = appliedSheets;
        }
        return icon;
    }

    const QString name;
    const QString tint;
    QIcon icon;
    int loadedFor = -1;
};

} // namespace

std::optional<ZStyleSheet> ZStyleSheet::load(const QString& fileName, QString* error)
{
    namespace StyleSheetFile = Zelkor::Vx::UI::Kit::StyleSheetFile;
    StyleSheetFile::Error why;
    const auto contents = StyleSheetFile::Read(fileName, why);
    if (!contents) {
        if (error)
            *error = why.describe();
        return std::nullopt;
    }
    const QFileInfo info(fileName);
    return ZStyleSheet{contents->text, info.dir().filePath(info.completeBaseName())};
}

void ZStyleSheet::apply() const
{
    delete systemColorScheme;
    Apply(*this);
}

bool ZStyleSheet::applyFile(const QString& fileName, QString* error)
{
    const auto sheet = load(fileName, error);
    if (sheet)
        sheet->apply();
    return sheet.has_value();
}

bool ZStyleSheet::followSystem(const QString& lightFile, const QString& darkFile, QString* error)
{
    const auto light = load(lightFile, error);
    const auto dark = light ? load(darkFile, error) : std::nullopt;
    if (!dark)
        return false;
    delete systemColorScheme;
    // Other styles change the palette that tells light from dark.
    UseSheetStyle();
    systemColorScheme = new SystemColorScheme([=](bool isDark) { Apply(isDark ? *dark : *light); }, qApp);
    return true;
}

QIcon ZStyleSheet::ownIcon(const QString& name) const
{
    return LoadTinted(iconFolder, name, QString());
}

QIcon ZStyleSheet::icon(const QString& name)
{
    return QIcon(new TintedIconEngine(name, QString()));
}

QIcon ZStyleSheet::iconOnAccent(const QString& name)
{
    return QIcon(new TintedIconEngine(name, "-on-accent"));
}
