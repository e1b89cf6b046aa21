#include <UI/Kit/StyleSheetEditor/StyleSheetChecker.h>

#include <Support/TestCase.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>

namespace StyleSheetChecker = Zelkor::Vx::UI::Kit::StyleSheetChecker;

namespace {

/// A block of code in a document, without its indentation.
struct Block
{
    QString page;
    int line = 0; ///< of its first line, from 1
    QString language;
    QString text;

    bool IsProgram() const { return language == "cpp" && text.contains("int main("); }
    bool IsProject() const { return language == "cmake" && text.contains("project("); }
    QString Name() const { return QString("%1:%2").arg(page).arg(line); }
};

QString Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool Write(const QString& path, const QString& text)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
}

QList<Block> BlocksOf(const QString& page)
{
    QList<Block> blocks;
    bool isInside = false;
    int indent = 0;
    int number = 0;
    for (const QString& line : Read(page).split('\n')) {
        ++number;
        if (line.trimmed().startsWith("```")) {
            isInside = !isInside;
            indent = line.indexOf('`');
            if (isInside)
                blocks.append({page, number + 1, line.mid(indent + 3), QString()});
        } else if (isInside) {
            blocks.last().text += line.mid(indent) + '\n';
        }
    }
    return blocks;
}

/// Runs a command line of a shell. Returns an empty text if it succeeded, otherwise what it wrote.
QString Run(const QString& command)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("bash", {"-c", command});
    process.waitForFinished(-1);
    const QString output = QString::fromUtf8(process.readAll());
    return process.exitCode() == 0 && process.exitStatus() == QProcess::NormalExit ? QString() : "failed: " + output;
}

QString OutputOf(const QString& command)
{
    QProcess process;
    process.start("bash", {"-c", command});
    process.waitForFinished(-1);
    return QString::fromUtf8(process.readAllStandardOutput());
}

QStringList Matches(const QString& text, const QString& pattern)
{
    QStringList found;
    for (auto matches = QRegularExpression(pattern).globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured(1));
    return found;
}

} // namespace

/// Tests the blocks of code in the documents: each works as it is, with the installed library.
class tst_Documents : public Support::TestCase
{
    Q_OBJECT

    QTemporaryDir folder;
    QStringList pages;
    QList<Block> blocks;
    QString compilerFlags;

    /// Builds a CMakeLists.txt with the program of its page, or of the README, and starts the program.
    QString BuildProject(const Block& project, const QString& path)
    {
        QList<Block> programs = blocks;
        programs.erase(std::remove_if(programs.begin(), programs.end(), [](const Block& b) { return !b.IsProgram(); }),
                       programs.end());
        const auto isHere = [&](const Block& program) { return program.page == project.page; };
        const auto program = std::find_if(programs.begin(), programs.end(), isHere);
        const QString target = Matches(project.text, "add_executable\\((\\w+) ").value(0);
        const QString source = Matches(project.text, "add_executable\\(\\w+ ([^ )]+)").value(0);
        if (!Write(path + "/CMakeLists.txt", project.text) ||
            !Write(path + '/' + source, (program != programs.end() ? *program : programs.first()).text))
            return "cannot be written";
        for (const QString& form : Matches(project.text, "(\\w+\\.ui)"))
            QFile::copy(QFileInfo(project.page).path() + '/' + form, path + '/' + form);
        const QString configure = QString("cd '%1' && ln -s '%2' VxUiWidgets && cp '%2/Styles/Dark.palette' "
                                          "Brand.palette && cmake -S . -B build -G Ninja "
                                          "-DCMAKE_PREFIX_PATH='%3/prefix'")
                                      .arg(path, VX_SOURCE, folder.path());
        // The text says which palette to copy.
        for (const QString& palette : Matches(project.text, "(\\w+\\.palette)"))
            QFile::copy(folder.filePath("prefix/share/VxUiWidgets/Styles/Template/Dark.palette"), path + '/' + palette);
        // As a subdirectory, the library would be built a second time.
        if (project.text.contains("add_subdirectory"))
            return Run(configure);
        const QString error = Run(configure + " && cmake --build build");
        return error.isEmpty() ? Start(path + "/build/" + target) : error;
    }

    /// Returns an error if the program ends or writes a warning.
    static QString Start(const QString& program)
    {
        QProcess process;
        process.start(program, QStringList());
        const bool hasEnded = process.waitForFinished(1500);
        // The platform offscreen warns about requests of every window.
        QStringList warnings = QString::fromUtf8(process.readAllStandardError()).split('\n');
        warnings.removeAll("This plugin does not support propagateSizeHints()");
        process.kill();
        process.waitForFinished();
        return (hasEnded ? "has ended: " : "") + warnings.join('\n');
    }

    /// Compiles a source file, or includes and statements for the body of a function: these have no brace in the first
    /// column.
    QString Compile(const Block& block, const QString& path) const
    {
        QStringList lines = block.text.split('\n');
        if (!lines.contains("{")) {
            const auto isStatement = [](const QString& line) { return !line.isEmpty() && !line.startsWith('#'); };
            const auto first = std::find_if(lines.begin(), lines.end(), isStatement);
            const int number = block.line + int(first - lines.begin());
            lines.insert(first, QString("void Body();\nvoid Body()\n{\n#line %1").arg(number));
            lines.append("}");
        }
        if (!Write(path + ".cpp", QString("#line %1 \"%2\"\n").arg(block.line).arg(block.page) + lines.join('\n')))
            return "cannot be written";
        return Run(QString(VX_COMPILER " -std=c++17 %1 -c '%2.cpp' -o '%2.o'").arg(compilerFlags, path));
    }

    QString Try(const Block& block)
    {
        const QString path = folder.filePath(block.Name().replace('/', '-'));
        if (block.language == "cpp" && !block.IsProgram())
            return Compile(block, path);
        if (block.IsProject())
            return BuildProject(block, path);
        if (block.language == "cmake") {
            const QString project = "cmake_minimum_required(VERSION 3.21)\nproject(included LANGUAGES CXX)\n";
            return Write(path + "/CMakeLists.txt", project + block.text)
                       ? Run(QString("cd '%1' && cmake -S . -B build -G Ninja").arg(path))
                       : "cannot be written";
        }
        if (block.language == "sh")
            return Write(path, block.text) ? Run(QString("bash -n '%1'").arg(path)) : "cannot be written";
        // Qt ignores faulty declarations silently; the checker of the style sheet editor does not.
        if (block.language == "css") {
            for (const auto& mistake : StyleSheetChecker::Check(block.text))
                return QString("line %1: %2").arg(block.line + mistake.line - 1).arg(Describe(mistake.problem));
        }
        return QString();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(VX_SOURCE));
        qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
        pages = OutputOf("git ls-files --cached --others --exclude-standard '*.md'").split('\n', Qt::SkipEmptyParts);
        QVERIFY(pages.contains("README.md"));
        std::stable_partition(pages.begin(), pages.end(), [](const QString& page) { return page == "README.md"; });
        for (const QString& page : pages)
            blocks += BlocksOf(page);
        for (const char* component : {"runtime", "development"})
            QCOMPARE(Run(QString("cmake --install '%1' --component %2 --prefix '%3/prefix'")
                             .arg(VX_BUILD, component, folder.path())),
                     QString());
        compilerFlags = OutputOf(QString("PKG_CONFIG_PATH=$(echo '%1'/prefix/lib/*/pkgconfig) "
                                         "pkg-config --cflags VxUiWidgetsKit")
                                     .arg(folder.path()))
                            .trimmed();
        QVERIFY(!compilerFlags.isEmpty());
    }

    void blockWorks_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < blocks.size(); ++i)
            QTest::newRow(qPrintable(blocks[i].Name() + ' ' + blocks[i].language)) << i;
    }

    void blockWorks()
    {
        QFETCH(int, index);
        const Block& block = blocks[index];
        static const QStringList LANGUAGES{"cpp", "cmake", "sh", "css", "bat", "mermaid", ""};
        QVERIFY2(LANGUAGES.contains(block.language), "unknown language");
        const QString error = Try(block);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        const auto builds = [&](const Block& other) { return other.IsProject() && other.page == block.page; };
        if (block.IsProgram())
            QVERIFY2(std::any_of(blocks.begin(), blocks.end(), builds), "the page has no CMakeLists.txt for it");
    }

    void linksLeadSomewhere_data() { AddPages(); }

    void linksLeadSomewhere()
    {
        QFETCH(QString, page);
        const QDir here(QFileInfo(page).path());
        for (const QString& link : Matches(Read(page), "\\]\\((?!https?:)([^) ]+)\\)")) {
            const QString file = link.startsWith('#') ? page : here.filePath(link.section('#', 0, 0));
            QVERIFY2(QFileInfo::exists(file), qPrintable(link));
            QStringList anchors{QString()};
            for (QString heading : Matches(Read(file), "\n#+ ([^\n]+)"))
                anchors += heading.toLower().remove(QRegularExpression("[^\\w -]")).replace(' ', '-');
            QVERIFY2(anchors.contains(link.section('#', 1)), qPrintable(link));
        }
    }

    void commandsExist_data() { AddPages(); }

    // In the text as well as in the blocks.
    void commandsExist()
    {
        QFETCH(QString, page);
        const QString text = Read(page);
        static const QString TARGETS = OutputOf("cmake --build " VX_BUILD " --target help");
        const auto isTarget = [](const QString& name) {
            return TARGETS.contains(QRegularExpression("\\b" + name + ": "));
        };
        for (const QString& name :
             Matches(text, "--target ([\\w-]+)") + Matches(text, "build/[\\w-]+/bin/([A-Za-z_]+)"))
            QVERIFY2(isTarget(name), qPrintable(name));
        for (const QString& name : Matches(text, "--preset ([\\w-]+)"))
            QVERIFY2(Read("CMakePresets.json").contains("\"name\": \"" + name + '"'), qPrintable(name));
        for (const QString& name :
             Matches(text, "(?<![\\w/])((?:\\./)?(?:run|test|\\.ci/run|tools/[\\w/-]+))(?= |`|\n)"))
            QVERIFY2(name == "run" || name == "test" || QFileInfo(name).isExecutable(), qPrintable(name));
        for (const QString& name : Matches(text, "\\b(VX_[A-Z][A-Z_]+)\\b"))
            QVERIFY2(Run("git grep -qw " + name + " -- ':!*.md'").isEmpty(), qPrintable(name));
        for (const QString& command : Matches(text, "((?:\\./run|\\./test|\\bVx[A-Z]\\w+(?:-qt6)?) --[^`#\n]*)")) {
            const QString program = command.section(' ', 0, 0).remove("-qt6");
            const QString path = program.startsWith("./") ? program : VX_BUILD "/bin/" + program;
            const QString help = (program == "./run" ? Read("run") + OutputOf(VX_BUILD "/bin/VxGallery --help")
                                                     : OutputOf(path + " --help"));
            for (const QString& option : Matches(command, " (--(?!help)[a-z0-9-]+)"))
                QVERIFY2(help.contains(option), qPrintable(command + ": " + option));
        }
    }

private:
    void AddPages() const
    {
        QTest::addColumn<QString>("page");
        for (const QString& page : pages)
            QTest::newRow(qPrintable(page)) << page;
    }
};

VX_TEST_MAIN(tst_Documents)
#include "tst_Documents.moc"
