#include "Options.h"

#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <Examples/Support/PictureOptions.h>
#include <Gallery/Browser/PageList.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace Zelkor::Gallery {

using namespace Examples;

namespace {

constexpr double SMALLEST_SCALE = 0.5;
constexpr double LARGEST_SCALE = 4;

void Declare(QCommandLineParser& parser)
{
    parser.setApplicationDescription("Shows every widget of VxUiWidgets in its states.");
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions({
        {{"h", "help"}, "Shows this help."},
        {"list", "Prints the names of the pages."},
        {"page", "Opens the page NAME instead of the start page.", "NAME"},
        {"state", "Selects a state of the page, by its name or its number from 1.", "STATE"},
        {"style",
         "Takes another style sheet: system, dark, light, high-contrast, a .palette file or a style sheet, whose icons "
         "are "
         "beside it in a folder of the same name.",
         "FILE", "system"},
        {"shot", "Writes a picture of the page as PNG, and ends.", "FILE"},
        {"shots", "Writes a picture of each page as PNG, and ends.", "DIR"},
        {"pictures", "Writes a picture of each widget in up to three states as PNG, and ends.", "DIR"},
        {"press", "Presses the button of this text before the picture.", "TEXT"},
        {"size", "Size of the window in pixels.", "WxH"},
        {"scale", "Scales everything, 0.5 to 4.", "F", "1"},
        {"rtl", "Lays out from right to left."},
        {"language", "Takes the texts of a language, de for instance.", "L"},
        {"after", "Time before the picture, in milliseconds.", "MS", "800"},
        {"fallback-shot", "Without a display, the picture of the page goes here.", "FILE", "gallery.png"},
    });
}

QString HelpText(const QCommandLineParser& parser, const QStringList& arguments)
{
    // QCommandLineParser gets the program's name from an application object.
    QByteArray name = QFileInfo(arguments.value(0)).fileName().toLocal8Bit();
    char* argument = name.data();
    int count = 1;
    const QCoreApplication application(count, &argument);
    return parser.helpText().trimmed();
}

// Sets the state of the page. Returns an error, or an empty text.
QString TakeState(const QString& state, Options& options)
{
    const Catalogue::Entry* entry = Catalogue::FindEntry(options.page);
    if (!entry)
        return QString("--state %1 needs the --page of a widget").arg(state);
    QStringList names;
    for (const Catalogue::State& known : entry->states)
        names.append(known.name);
    const int index = int(names.indexOf(state));
    options.state = index >= 0 ? index : state.toInt() - 1;
    if (options.state >= 0 && options.state < names.size())
        return QString();
    for (int i = 0; i < names.size(); ++i)
        names[i] = QString("%1 %2").arg(i + 1).arg(names[i]);
    return QString("%1 has no state '%2', but: %3").arg(options.page, state, names.join(", "));
}

// Sets the options from the values. Returns an error, or an empty text.
QString TakeValues(const QCommandLineParser& parser, Options& options)
{
    QString error;
    options.size = ParseSize(parser, &error);
    options.after = ParseDelay(parser, &error);
    if (!error.isEmpty())
        return error;
    bool isNumber = false;
    options.scale = parser.value("scale").toDouble(&isNumber);
    if (!isNumber || !(options.scale >= SMALLEST_SCALE && options.scale <= LARGEST_SCALE))
        return QString("--scale takes a number from 0.5 to 4, not '%1'").arg(parser.value("scale"));
    if (parser.isSet("page") && !PageNames().contains(options.page))
        return QString("there is no page '%1'; --list names them").arg(options.page);
    if (parser.isSet("state"))
        error = TakeState(parser.value("state"), options);
    if (!error.isEmpty())
        return error;
    for (const char* name : {"shot", "shots", "pictures", "press", "language", "fallback-shot"}) {
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return QString("--%1 takes a value that is not empty").arg(name);
    }
    if (parser.isSet("shots") && (parser.isSet("shot") || parser.isSet("page") || parser.isSet("press")))
        return "--shots takes every page, so --shot, --page and --press do not go with it";
    if (parser.isSet("pictures") &&
        (parser.isSet("shots") || parser.isSet("shot") || parser.isSet("page") || parser.isSet("press")))
        return "--pictures shows no page, so --shot, --shots, --page and --press do not go with it";
    options.styleArgument = parser.value("style");
    if (options.styleArgument.endsWith(".palette", Qt::CaseInsensitive))
        options.palette = Palette::Read(options.styleArgument, &error);
    else if (!Examples::IsBuiltInStyleSheet(options.styleArgument))
        Examples::LoadStyleSheet(options.styleArgument, &error);
    return error;
}

} // namespace

std::variant<Options, Answer> ReadOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    Declare(parser);
    if (!parser.parse(arguments))
        return Answer{EXIT_BAD_USE, parser.errorText()};
    if (!parser.positionalArguments().isEmpty())
        return Answer{EXIT_BAD_USE, QString("'%1' is no option").arg(parser.positionalArguments().constFirst())};
    if (parser.isSet("help"))
        return Answer{0, HelpText(parser, arguments)};

    Options options;
    options.list = parser.isSet("list");
    options.page = parser.value("page");
    options.shot = parser.value("shot");
    options.shots = parser.value("shots");
    options.pictures = parser.value("pictures");
    options.press = parser.value("press");
    options.fallbackShot = parser.value("fallback-shot");
    options.rightToLeft = parser.isSet("rtl");
    options.language = parser.value("language");
    const QString error = TakeValues(parser, options);
    if (!error.isEmpty())
        return Answer{EXIT_BAD_USE, error};
    return options;
}

} // namespace Zelkor::Gallery
