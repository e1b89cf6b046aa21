#include <Gallery/Catalogue.h>
#include <Gallery/StyleSheet.h>

#include <Support/TestCase.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>

using namespace Zelkor::Gallery;

namespace {

using Palette = QMap<QString, QColor>;

Palette ReadPalette(const QString& name)
{
    Palette palette;
    QFile file(QString(VX_STYLES_SOURCE "/%1.palette").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return palette;
    static const QRegularExpression LINE("^([a-z-]+) = (#[0-9a-f]{6})$", QRegularExpression::MultilineOption);
    auto matches = LINE.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        palette.insert(match.captured(1), QColor(match.captured(2)));
    }
    return palette;
}

double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b)
{
    const double first = Luminance(a);
    const double second = Luminance(b);
    return (qMax(first, second) + 0.05) / (qMin(first, second) + 0.05);
}

QString ReadText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class tst_Styles : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("dark") << "Dark";
        QTest::newRow("light") << "Light";
    }

    void textIsReadable_data()
    {
        QTest::addColumn<QString>("front");
        QTest::addColumn<QStringList>("backs");
        QTest::addColumn<double>("smallest");
        const QStringList areas = {"window", "surface", "raised", "control", "control-hover"};
        QTest::newRow("text") << "text" << areas + QStringList{"control-pressed", "selection", "preview"} << 4.5;
        QTest::newRow("muted text") << "text-muted" << QStringList{"window", "surface", "raised"} << 4.5;
        QTest::newRow("accent as text") << "accent-line" << QStringList{"window", "surface", "raised"} << 4.5;
        QTest::newRow("on accent") << "on-accent" << QStringList{"accent", "accent-hover", "accent-pressed"} << 4.5;
        QTest::newRow("error") << "danger-text" << QStringList{"danger-surface"} << 4.5;
        QTest::newRow("keyboard focus") << "accent-line" << areas << 3.0;
        QTest::newRow("edge of fields") << "border-strong" << QStringList{"window", "surface", "raised"} << 3.0;
        QTest::newRow("recording") << "recording" << QStringList{"window", "surface"} << 3.0;
    }

    void textIsReadable()
    {
        QFETCH_GLOBAL(QString, name);
        QFETCH(QString, front);
        QFETCH(QStringList, backs);
        QFETCH(double, smallest);
        const Palette palette = ReadPalette(name);
        for (const QString& back : backs) {
            QVERIFY2(palette.contains(front) && palette.contains(back), qPrintable(front + " on " + back));
            const double contrast = Contrast(palette[front], palette[back]);
            QVERIFY2(contrast >= smallest, qPrintable(QString("%1 on %2: %3").arg(front, back).arg(contrast)));
        }
    }

    void palettesHaveTheSameNames()
    {
        const Palette palette = ReadPalette("Dark");
        QVERIFY(!palette.isEmpty());
        QCOMPARE(ReadPalette("Light").keys(), palette.keys());
        const QString allTemplates = [] {
            QString text = ReadText(VX_STYLES_SOURCE "/Template.qss.in");
            for (const QFileInfo& icon : QDir(VX_STYLES_SOURCE "/icons").entryInfoList({"*.svg.in"}))
                text += ReadText(icon.filePath());
            return text;
        }();
        for (const QString& colour : palette.keys())
            QVERIFY2(allTemplates.contains("@" + colour + "@"), qPrintable(colour + " is used nowhere"));
    }

    void sheetIsWhole()
    {
        QFETCH_GLOBAL(QString, name);
        QString error;
        const auto sheet = LoadStyleSheet(name.toLower(), error);
        QVERIFY2(sheet, qPrintable(error));
        static const QRegularExpression PLACEHOLDER("@[a-z-]+@");
        QVERIFY(!sheet->text.contains(PLACEHOLDER));

        static const QRegularExpression URL("url\\(([^)]*)\\)");
        auto urls = URL.globalMatch(sheet->text);
        QVERIFY(urls.hasNext());
        while (urls.hasNext()) {
            const QString url = urls.next().captured(1);
            QVERIFY2(url.startsWith("vxstyle:"), qPrintable(url));
            VerifyIcon(sheet->iconFolder, url.mid(8));
        }
        for (const Entry& entry : Entries()) {
            QVERIFY2(sheet->text.contains("/* ==== " + entry.styleSection + " ="), qPrintable(entry.className));
            VerifyIcon(sheet->iconFolder, entry.icon + ".svg");
        }
        // A mistake in the sheet would be a warning, which fails the test.
        ApplyStyleSheet(*sheet);
        QWidget().ensurePolished();
    }

    void badTemplateOrPaletteStopsTheBuild()
    {
        QFETCH_GLOBAL(QString, name);
        const QString palette = QString(VX_STYLES_SOURCE "/%1.palette").arg(name);
        QTemporaryDir folder;
        const auto write = [&](const QString& file, const QByteArray& text) {
            QFile out(folder.filePath(file));
            return out.open(QIODevice::WriteOnly) && out.write(text) == text.size();
        };
        QVERIFY(write("good.in", "QLabel { color: @text@; }\n"));
        QVERIFY(write("bad.in", "QLabel { color: @no-such-colour@; }\n"));
        QVERIFY(write("bad.palette", "text = blue\n"));
        const auto build = [&](const QString& templateFile, const QString& paletteFile) {
            QProcess cmake;
            cmake.start(VX_CMAKE,
                        {"-DTEMPLATE=" + templateFile, "-DPALETTE=" + paletteFile, "-DICONS=" + folder.path(),
                         "-DSHEET=" + folder.filePath("Out.qss"), "-P", VX_STYLES_SOURCE "/BuildStyleSheet.cmake"});
            return cmake.waitForFinished() && cmake.exitCode() == 0;
        };
        QVERIFY(build(folder.filePath("good.in"), palette));
        QCOMPARE(ReadText(folder.filePath("Out.qss")),
                 QString("QLabel { color: %1; }\n").arg(ReadPalette(name)["text"].name()));
        QVERIFY(!build(folder.filePath("bad.in"), palette));
        QVERIFY(!build(folder.filePath("good.in"), folder.filePath("bad.palette")));
    }

    void unreadableSheetIsRefused()
    {
        QString error;
        QVERIFY(!LoadStyleSheet("no-such-sheet.qss", error));
        QVERIFY(error.contains("no-such-sheet.qss"));
        QVERIFY(!LoadStyleSheet(QDir::tempPath(), error));
    }

private:
    static void VerifyIcon(const QString& folder, const QString& file)
    {
        const QString path = folder + "/" + file;
        QVERIFY2(QFile::exists(path), qPrintable(path));
        QVERIFY2(!QImage(path).isNull(), qPrintable(path));
    }
};

VX_TEST_MAIN(tst_Styles)
#include "tst_Styles.moc"
