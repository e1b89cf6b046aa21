#include <Catalogue/Catalogue.h>

#include <Support/TestCase.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr int TIME_LIMIT = 60000;

QStringList PageNames()
{
    QStringList names{"Start"};
    for (const auto& entry : Zelkor::Catalogue::Entries())
        names.append(entry.className);
    return names;
}

} // namespace

class tst_Gallery : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(folder.filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    void listsAndWritesAllPages()
    {
        QCOMPARE(RunGallery({"--list"}, ""), PageNames() + QStringList{"exit 0"});
        const QDir target(folder.filePath("new/pages"));
        const QStringList arguments = {"--shots", target.path(), "--size", "900x640", "--after", "50"};
        QCOMPARE(RunGallery(arguments + QStringList{"--style", "light", "--rtl"}), QStringList{"exit 0"});
        for (const QString& page : PageNames())
            QVERIFY2(QImage(target.filePath(page + ".png")).size() == QSize(900, 640), qPrintable(page));
        QCOMPARE(target.entryList(QDir::Files).size(), PageNames().size());

        const QDir small(folder.filePath("widgets"));
        QCOMPARE(RunGallery({"--pictures", small.path(), "--after", "0"}), QStringList{"exit 0"});
        for (const auto& entry : Zelkor::Catalogue::Entries())
            QVERIFY2(!QImage(small.filePath(entry.className + ".png")).isNull(), qPrintable(entry.className));
    }

    void takesSizeScaleAndAnotherStyleSheet()
    {
        QFile file(folder.filePath("Mine.qss"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("QWidget:window { background-color: #123456; }") > 0);
        file.close();
        // The icons that are not there may be missed in words.
        const QStringList look = {"--style", "Mine.qss", "--size", "700x300", "--scale", "1.5"};
        QCOMPARE(RunGallery(look + QStringList{"--shot", "mine.png", "--after", "50"}).last(), QString("exit 0"));
        const QImage shot(folder.filePath("mine.png"));
        QCOMPARE(shot.size(), QSize(1050, 450));
        QCOMPARE(shot.pixelColor(2, 2), QColor("#123456"));
    }

    void pressesAButtonAndShowsItsPanel()
    {
        const QStringList scene = {"--page", "ButtonWithPopUpContainer", "--size", "1000x700", "--after", "100"};
        const QImage closed = Shot(scene);
        const QImage open = Shot(scene + QStringList{"--press", "Quality"});
        int changedRows = 0;
        for (int y = 0; y < closed.height(); ++y)
            changedRows += closed.copy(0, y, closed.width(), 1) != open.copy(0, y, open.width(), 1);
        QVERIFY2(changedRows > 100, "no panel opened");
    }

    void directionLooksTheSameWhenItChanges()
    {
        const QStringList scene = {"--page", "PixmapWidget", "--size", "1300x700", "--after", "100"};
        QCOMPARE(Shot(scene + QStringList{"--press", "Right to left"}), Shot(scene + QStringList{"--rtl"}));
    }

    void goesOnWithoutADisplayAndALanguage()
    {
#if defined(Q_OS_WIN)
        QSKIP("There is always a display");
#endif
        const QStringList lines =
            RunGallery({"--fallback-shot", "fallback.png", "--language", "tlh", "--after", "200"}, "");
        QCOMPARE(lines.size(), 3);
        QVERIFY2(lines[0].startsWith("error: ") && lines[0].contains("fallback.png"), qPrintable(lines[0]));
        QVERIFY2(lines[1].startsWith("error: ") && lines[1].contains("tlh"), qPrintable(lines[1]));
        QCOMPARE(lines[2], QString("exit 0"));
        QVERIFY(!QImage(folder.filePath("fallback.png")).isNull());
    }

    void refusesBadUse_data()
    {
        QTest::addColumn<int>("exitCode");
        for (const char* line : {"--no-such-option",
                                 "ZLabel",
                                 "--page NoWidget",
                                 "--page ",
                                 "--shot",
                                 "--shot ",
                                 "--size 100x",
                                 "--size -5x10",
                                 "--size 0x0",
                                 "--size 99999x99999",
                                 "--scale 4 --size 8192x8192",
                                 "--scale big",
                                 "--scale nan",
                                 "--scale 1000",
                                 "--after soon",
                                 "--after -1",
                                 "--style no-such-sheet.qss",
                                 "--style .",
                                 "--style /dev/null",
                                 "--shot file --shots shots",
                                 "--shot file --press Nothing"})
            QTest::newRow(line) << 2;
        for (const char* line :
             {"--after 0 --shot no/such/folder.png", "--shots file/folder", "--pictures file/folder"})
            QTest::newRow(line) << 1;
    }

    void refusesBadUse()
    {
        QFETCH(int, exitCode);
        const QStringList arguments = QString(QTest::currentDataTag()).split(' ');
        // It says what is wrong, which is last in these command lines.
        const QString culprit = QString(arguments.last()).remove("--");
        const QStringList lines = RunGallery(arguments);
        QCOMPARE(QStringList(lines.mid(1)), QStringList{QString("exit %1").arg(exitCode)});
        QVERIFY2(lines[0].startsWith("error: ") && lines[0].contains(culprit), qPrintable(lines[0]));
    }

private:
    /// What the gallery writes, errors marked as such, and how it ends.
    QStringList RunGallery(const QStringList& arguments, const char* platform = "offscreen")
    {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_SCALE_FACTOR"})
            qunsetenv(name);
        qputenv("QT_QPA_PLATFORM", platform);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
        // Into files: what is in a pipe of Wine's may come later than the end of the process.
        const QString written[] = {folder.filePath("output"), folder.filePath("errors")};
        QProcess gallery;
        gallery.setWorkingDirectory(folder.path());
        gallery.setStandardOutputFile(written[0]);
        gallery.setStandardErrorFile(written[1]);
        gallery.start(VX_GALLERY, arguments);
        if (!gallery.waitForFinished(TIME_LIMIT) || gallery.exitStatus() != QProcess::NormalExit)
            return {gallery.errorString()};
        QStringList lines;
        for (const QString& name : written) {
            QFile file(name);
            [&] { QVERIFY(file.open(QIODevice::ReadOnly)); }();
            for (const QString& line : QString(file.readAll()).remove('\r').split('\n', Qt::SkipEmptyParts))
                lines.append((name == written[1] ? "error: " : "") + line);
        }
        return lines << QString("exit %1").arg(gallery.exitCode());
    }

    QImage Shot(const QStringList& arguments)
    {
        const QString file = folder.filePath("shot.png");
        QFile::remove(file);
        [&] { QCOMPARE(RunGallery(arguments + QStringList{"--shot", file}), QStringList{"exit 0"}); }();
        return QImage(file);
    }

    QTemporaryDir folder;
};

VX_TEST_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
