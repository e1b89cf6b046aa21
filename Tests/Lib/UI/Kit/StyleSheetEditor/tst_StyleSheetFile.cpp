#include <UI/Kit/ZCodeEditor.h>
#include <UI/Kit/ZRuntimeStylesheetEditor.h>

#include <Support/TestCase.h>

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QPushButton>
#include <QTemporaryDir>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>
#endif

namespace {

const QString RED = "QLabel { color: #ff0000; }";

QPushButton* ButtonOf(QWidget& widget, const QString& text)
{
    for (auto* button : widget.findChildren<QPushButton*>()) {
        if (button->text().remove('&') == text && button->isVisible())
            return button;
    }
    return nullptr;
}

} // namespace

/// The style sheet editor opens and saves a file.
class tst_StyleSheetFile : public Support::TestCase
{
    Q_OBJECT

    const QTemporaryDir folder;
    const QString name = folder.filePath("a.qss");

    QByteArray bytes() const
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    void write(const QByteArray& bytes) const
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

private Q_SLOTS:
    void closeAsksWhetherToSave()
    {
        ZRuntimeStylesheetEditor editor;
        editor.show();
        const QString text = QString::fromUtf8("/* Größe */\nA { b: c }\n");
        editor.setText(text);
        QVERIFY(editor.isModified());
        QVERIFY(editor.save(name));
        QVERIFY(!editor.isModified());
        QVERIFY(editor.windowTitle().startsWith("a.qss"));
        for (const QString answer : {"Cancel", "Discard", "Save"}) {
            editor.setText(RED);
            editor.show();
            QVERIFY(!editor.close());
            QTest::mouseClick(ButtonOf(editor, answer), Qt::LeftButton);
            QCOMPARE(editor.isVisible(), answer == "Cancel");
            QVERIFY(editor.load(name));
            QCOMPARE(editor.text(), answer == "Save" ? RED : text);
        }
    }

    void discardedTextIsKeptUntilAFileIsOpened()
    {
        ZRuntimeStylesheetEditor editor;
        editor.show();
        QVERIFY(editor.save(name));
        editor.setText(RED);
        for (QAction* action : editor.actions()) {
            if (action->shortcut() == QKeySequence(QKeySequence::Open))
                action->trigger();
        }
        QTest::keyClick(ButtonOf(editor, "Discard"), Qt::Key_Return);
        editor.findChild<QFileDialog*>()->reject();
        QCOMPARE(editor.focusWidget(), editor.findChild<ZCodeEditor*>());
        QVERIFY(editor.isModified());
        QCOMPARE(editor.fileName(), name);
    }

    void failedLoadKeepsTheText()
    {
        write("A { b: \xff }");
        QStringList unreadable{name, folder.path(), folder.filePath("none.qss")};
#ifdef Q_OS_LINUX
        const QString pipe = folder.filePath("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        unreadable += {pipe, "/dev/null", "/proc/self/mem"};
#endif
        ZRuntimeStylesheetEditor editor;
        editor.setText(RED);
        for (const QString& file : unreadable) {
            QVERIFY2(!editor.load(file), qPrintable(file));
            QVERIFY2(editor.message().contains(file), qPrintable(editor.message()));
        }
        QVERIFY(!editor.save(folder.filePath("none/a.qss")));
        QVERIFY(editor.message().contains("none"));
        QCOMPARE(editor.text(), RED);
        QVERIFY(editor.isModified());
        editor.setText("A { b: c }");
        QCOMPARE(editor.message(), QString());
    }

    void saveKeepsBytesOfUneditedLines_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBFQLabel {}\n");
        QTest::newRow("mixed line endings") << QByteArray("A {}\r\nB {}\nC {}\rD {}");
        QTest::newRow("no-break space") << QByteArray("A { b: \"c\xC2\xA0 d\" }");
        QTest::newRow("Unicode line separators") << QByteArray("A {}\xE2\x80\xA8 B {}\xE2\x80\xA9 C {}");
    }

    void saveKeepsBytesOfUneditedLines()
    {
        QFETCH(QByteArray, before);
        write(before);
        ZRuntimeStylesheetEditor editor;
        QVERIFY(editor.load(name));
        QVERIFY(editor.save(name));
        QCOMPARE(bytes(), before);
        auto* code = editor.findChild<ZCodeEditor*>();
        code->moveCursor(QTextCursor::End);
        code->insertPlainText("E");
        QVERIFY(editor.save(name));
        QCOMPARE(bytes(), before + 'E');
    }

#ifdef Q_OS_LINUX
    void failedSaveLeavesTheOldFile()
    {
        write("old");
        ZRuntimeStylesheetEditor editor;
        editor.setText(RED);
        // The largest size of a file stands for the size of the disk.
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit usual;
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &usual), 0);
        const rlimit low{10, usual.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &low), 0);
        const bool isSavedOnFullDisk = editor.save(name);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &usual), 0);
        std::signal(SIGXFSZ, handler);
        QVERIFY(!isSavedOnFullDisk);
        QCOMPARE(bytes(), QByteArray("old"));
        QVERIFY2(editor.message().contains(qt_error_string(EFBIG)), qPrintable(editor.message()));
    }
#endif
};

VX_TEST_MAIN(tst_StyleSheetFile)
#include "tst_StyleSheetFile.moc"
