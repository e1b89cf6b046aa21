#include <Gallery/Catalogue.h>

#include <Support/TestCase.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr int TIME_LIMIT = 60000;
// Header and tool bar of the recorder are at least this high, its side margins this wide.
constexpr QMargins AROUND_THE_PREVIEW(16, 48, 16, 56);

struct Outcome
{
    int exitCode;
    QStringList output;
    QStringList errors;
};

QStringList LinesOf(const QByteArray& text)
{
    return QString::fromLocal8Bit(text).split('\n', Qt::SkipEmptyParts);
}

Outcome RunGallery(const QStringList& arguments, bool withPlatform = true)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR"})
        environment.remove(name);
    if (withPlatform)
        environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("XDG_RUNTIME_DIR", QDir::tempPath());
    QProcess gallery;
    gallery.setProcessEnvironment(environment);
    gallery.start(VX_GALLERY, arguments);
    if (!gallery.waitForFinished(TIME_LIMIT) || gallery.exitStatus() != QProcess::NormalExit)
        return {-1, {}, {gallery.errorString()}};
    QStringList errors;
    // Words of Qt about the folder that it is given here, which is not for one person alone.
    for (const QString& line : LinesOf(gallery.readAllStandardError())) {
        if (!line.contains("runtime directory"))
            errors.append(line);
    }
    return {gallery.exitCode(), LinesOf(gallery.readAllStandardOutput()), errors};
}

QStringList PageNames()
{
    QStringList names{"Recorder"};
    for (const auto& entry : Zelkor::Gallery::Entries())
        names.append(entry.className);
    return names;
}

QRect Difference(const QImage& a, const QImage& b)
{
    QRect difference;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y))
                difference |= QRect(x, y, 1, 1);
        }
    }
    return difference;
}

} // namespace

class tst_Gallery : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void listsThePages()
    {
        const Outcome outcome = RunGallery({"--list"}, false);
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.output, PageNames());
        QCOMPARE(outcome.errors, QStringList());
    }

    void opensEachPage_data()
    {
        QTest::addColumn<QString>("page");
        for (const QString& page : PageNames())
            QTest::newRow(qPrintable(page)) << page;
    }

    void opensEachPage()
    {
        QFETCH(QString, page);
        const QString file = folder.filePath("page.png");
        const Outcome outcome =
            RunGallery({"--page", page, "--shot", file, "--size", "900x640", "--after", "100", "--rtl"});
        QCOMPARE(outcome.errors, QStringList());
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(QImage(file).size(), QSize(900, 640));
    }

    void writesAllPages()
    {
        const QDir target(folder.filePath("new/pages"));
        const Outcome outcome = RunGallery({"--shots", target.path(), "--after", "50", "--style", "light"});
        QCOMPARE(outcome.errors, QStringList());
        QCOMPARE(outcome.exitCode, 0);
        for (const QString& page : PageNames())
            QVERIFY2(!QImage(target.filePath(page + ".png")).isNull(), qPrintable(page));
        QCOMPARE(target.entryList(QDir::Files).size(), PageNames().size());
    }

    void scalesThePicture()
    {
        const QString file = folder.filePath("scaled.png");
        const Outcome outcome = RunGallery({"--page", "ZLabel", "--shot", file, "--size", "700x300", "--scale", "1.5"});
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(QImage(file).size(), QSize(1050, 450));
    }

    void takesAnotherStyleSheet()
    {
        const QString sheet = folder.filePath("Mine.qss");
        QFile file(sheet);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("QWidget:window { background-color: #123456; }");
        file.close();
        const QString shot = folder.filePath("mine.png");
        QCOMPARE(RunGallery({"--style", sheet, "--shot", shot, "--after", "50"}).exitCode, 0);
        QCOMPARE(QImage(shot).pixelColor(2, 2), QColor("#123456"));
    }

    void onlyTheLivePictureMoves()
    {
        const QString first = folder.filePath("first.png");
        const QString second = folder.filePath("second.png");
        QCOMPARE(RunGallery({"--shot", first, "--size", "720x520", "--after", "1500"}).exitCode, 0);
        QCOMPARE(RunGallery({"--shot", second, "--size", "720x520", "--after", "2000"}).exitCode, 0);
        const QImage image(first);
        const QRect difference = Difference(image, QImage(second));
        QVERIFY2(!difference.isEmpty(), "the picture stands still");
        QVERIFY2(image.rect().marginsRemoved(AROUND_THE_PREVIEW).contains(difference),
                 qPrintable(QString("from %1,%2 to %3,%4")
                                .arg(difference.left())
                                .arg(difference.top())
                                .arg(difference.right())
                                .arg(difference.bottom())));
    }

    void pressesAButtonAndShowsItsPanel()
    {
        const QString closed = folder.filePath("closed.png");
        const QString open = folder.filePath("open.png");
        const QStringList scene = {"--page", "ButtonWithPopUpContainer", "--size", "1000x700", "--after", "100"};
        QCOMPARE(RunGallery(scene + QStringList{"--shot", closed}).exitCode, 0);
        QCOMPARE(RunGallery(scene + QStringList{"--shot", open, "--press", "Quality"}).exitCode, 0);
        const QRect difference = Difference(QImage(closed), QImage(open));
        QVERIFY2(difference.height() > 100, "no panel opened");
    }

    void runsWithoutADisplay()
    {
        const QString file = folder.filePath("fallback.png");
        const Outcome outcome = RunGallery({"--fallback-shot", file, "--after", "200"}, false);
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.errors.size(), 1);
        QVERIFY2(outcome.errors[0].contains(file), qPrintable(outcome.errors[0]));
        QVERIFY(!QImage(file).isNull());
    }

    void goesOnWithoutALanguage()
    {
        const Outcome outcome =
            RunGallery({"--language", "tlh", "--shot", folder.filePath("language.png"), "--after", "50"});
        QCOMPARE(outcome.exitCode, 0);
        QCOMPARE(outcome.errors.size(), 1);
        QVERIFY2(outcome.errors[0].contains("tlh"), qPrintable(outcome.errors[0]));
    }

    void refusesBadUse_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        const QString shot = folder.filePath("refused.png");
        QTest::newRow("unknown option") << QStringList{"--no-such-option"} << 2;
        QTest::newRow("no option") << QStringList{"ZLabel"} << 2;
        QTest::newRow("unknown page") << QStringList{"--page", "NoWidget"} << 2;
        QTest::newRow("empty page") << QStringList{"--page", ""} << 2;
        QTest::newRow("value missing") << QStringList{"--shot"} << 2;
        QTest::newRow("empty file") << QStringList{"--shot", ""} << 2;
        QTest::newRow("size without height") << QStringList{"--size", "100x"} << 2;
        QTest::newRow("negative size") << QStringList{"--size", "-5x10"} << 2;
        QTest::newRow("no area") << QStringList{"--size", "0x0"} << 2;
        QTest::newRow("size beyond any screen") << QStringList{"--size", "99999x99999"} << 2;
        QTest::newRow("scale is no number") << QStringList{"--scale", "big"} << 2;
        QTest::newRow("scale is not finite") << QStringList{"--scale", "nan"} << 2;
        QTest::newRow("scale too large") << QStringList{"--scale", "1000"} << 2;
        QTest::newRow("time is no number") << QStringList{"--after", "soon"} << 2;
        QTest::newRow("negative time") << QStringList{"--after", "-1"} << 2;
        QTest::newRow("no such sheet") << QStringList{"--style", "no-such-sheet.qss"} << 2;
        QTest::newRow("both kinds of pictures") << QStringList{"--shot", shot, "--shots", folder.path()} << 2;
        QTest::newRow("no such button") << QStringList{"--press", "Nothing like it", "--shot", shot} << 2;
        QTest::newRow("picture in no folder") << QStringList{"--shot", shot + "/no/folder.png", "--after", "0"} << 1;
        QTest::newRow("folder below a file") << QStringList{"--shots", VX_GALLERY "/folder"} << 1;
    }

    void refusesBadUse()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        const Outcome outcome = RunGallery(arguments);
        QCOMPARE(outcome.exitCode, exitCode);
        QVERIFY2(outcome.errors.size() == 1, qPrintable(outcome.errors.join(" | ")));
        QCOMPARE(outcome.output, QStringList());
    }

private:
    QTemporaryDir folder;
};

VX_TEST_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
