#include <Catalogue/Catalogue.h>

#include <Support/TestCase.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr int TIMEOUT_MS = 60000;

QStringList PageNames()
{
    QStringList names{"Start"};
    for (const auto& entry : Zelkor::Catalogue::Entries())
        names.append(entry.className);
    return names << "QtWidgets";
}

} // namespace

/// Runs the program with command lines.
class tst_Gallery : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void listsAllPages() { QCOMPARE(Run("--list"), PageNames() + QStringList{"exit 0"}); }

    // Each page scrolls in a small window.
    void writesAPictureOfEachPage()
    {
        const QString look = " --size 500x250 --after 50 --style light --rtl --language de";
        QCOMPARE(Run("--shots new/pages" + look), QStringList{"exit 0"});
        for (const QString& page : PageNames())
            QCOMPARE(QImage(folder.filePath("new/pages/" + page + ".png")).size(), QSize(500, 250));
        QCOMPARE(QDir(folder.filePath("new/pages")).entryList(QDir::Files).size(), PageNames().size());
        QCOMPARE(Run("--page ColorButton --shot one.png" + look), QStringList{"exit 0"});
        QCOMPARE(QImage(folder.filePath("one.png")), QImage(folder.filePath("new/pages/ColorButton.png")));
    }

    void appliesSizeScaleAndStyleSheet_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("Mine.qss") << QByteArray("QWidget:window { background-color: #123456; }");
        QFile palette(VX_STYLES "/Dark.palette");
        QVERIFY(palette.open(QIODevice::ReadOnly));
        QTest::newRow("Mine.palette") << palette.readAll().replace("surface = #1d2027", "surface = #123456");
    }

    void appliesSizeScaleAndStyleSheet()
    {
        QFETCH(QByteArray, text);
        QFile file(folder.filePath(QTest::currentDataTag()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write(text) > 0);
        file.close();
        QCOMPARE(Run(QString("--style %1 --size 700x300 --scale 1.5 --shot mine.png --after 50")
                         .arg(QTest::currentDataTag())),
                 QStringList{"exit 0"});
        const QImage shot(folder.filePath("mine.png"));
        QCOMPARE(shot.size(), QSize(1050, 450));
        QCOMPARE(shot.pixelColor(2, 2), QColor("#123456"));
    }

    void pressOpensAMenuForThePicture()
    {
        const QString page = "--page ColorButton --size 900x500 --after 100 --style light";
        QCOMPARE(Run(page + " --shot closed.png"), QStringList{"exit 0"});
        QCOMPARE(Run(page + " --shot menu.png --press Light"), QStringList{"exit 0"});
        const QRect belowTheButton(340, 55, 100, 80);
        QVERIFY(QImage(folder.filePath("menu.png")).copy(belowTheButton) !=
                QImage(folder.filePath("closed.png")).copy(belowTheButton));
    }

    void scaleOfTheScreenIsNotRounded()
    {
        qputenv("QT_FONT_DPI", "144");
        QCOMPARE(Run("--size 400x300 --shot scaled.png --after 0").last(), QString("exit 0"));
        qunsetenv("QT_FONT_DPI");
        QCOMPARE(QImage(folder.filePath("scaled.png")).size(), QSize(600, 450));
    }

    void runsWithoutDisplayAndTranslation()
    {
#if defined(Q_OS_WIN)
        QSKIP("There is always a display");
#endif
        const QStringList lines = Run("--fallback-shot fallback.png --language tlh --after 200", "");
        QCOMPARE(lines.size(), 3);
        QVERIFY2(lines[0].contains("fallback.png"), qPrintable(lines[0]));
        QVERIFY2(lines[1].contains("tlh"), qPrintable(lines[1]));
        QCOMPARE(lines[2], QString("exit 0"));
        QVERIFY(!QImage(folder.filePath("fallback.png")).isNull());
    }

    void rejectsBadArguments_data()
    {
        QTest::addColumn<int>("exitCode");
        for (const char* line : {"--no-such-option", "ZLabel", "--page NoWidget", "--shot", "--size 100x", "--size 0x0",
                                 "--scale 4 --size 8192x8192", "--scale nan", "--after -1", "--style no-such-sheet.qss",
                                 "--style no-such.palette", "--shot file --shots shots", "--shot file --press Nothing",
                                 "--page ZLabel --state Nothing", "--page ZLabel --state 99", "--state 1"})
            QTest::newRow(line) << 2;
        for (const char* line : {"--after 0 --shot no/such/folder.png", "--shots file/folder"})
            QTest::newRow(line) << 1;
    }

    void rejectsBadArguments()
    {
        QFETCH(int, exitCode);
        const QString line = QTest::currentDataTag();
        QFile file(folder.filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QStringList lines = Run(line);
        QCOMPARE(QStringList(lines.mid(1)), QStringList{QString("exit %1").arg(exitCode)});
        // The culprit is the last argument in each of these command lines.
        QVERIFY2(lines[0].startsWith("error: "), qPrintable(lines[0]));
        QVERIFY2(lines[0].contains(line.section(' ', -1).remove("--")), qPrintable(lines[0]));
    }

private:
    /// Returns the lines that the gallery writes, those to standard error with a prefix, and its exit code.
    QStringList Run(const QString& arguments, const char* platform = "offscreen")
    {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_SCALE_FACTOR"})
            qunsetenv(name);
        qputenv("QT_QPA_PLATFORM", platform);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
        // Files, because under Wine a pipe may deliver its data after the end of the process.
        const QString outputs[] = {folder.filePath("output"), folder.filePath("errors")};
        QProcess gallery;
        gallery.setWorkingDirectory(folder.path());
        gallery.setStandardOutputFile(outputs[0]);
        gallery.setStandardErrorFile(outputs[1]);
        gallery.start(VX_GALLERY, QProcess::splitCommand(arguments));
        if (!gallery.waitForFinished(TIMEOUT_MS) || gallery.exitStatus() != QProcess::NormalExit)
            return {gallery.errorString()};
        QStringList lines;
        for (const QString& name : outputs) {
            QFile file(name);
            [&] { QVERIFY(file.open(QIODevice::ReadOnly)); }();
            for (const QString& line : QString(file.readAll()).remove('\r').split('\n', Qt::SkipEmptyParts))
                lines.append((name == outputs[1] ? "error: " : "") + line);
        }
        return lines << QString("exit %1").arg(gallery.exitCode());
    }

    QTemporaryDir folder;
};

VX_TEST_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
