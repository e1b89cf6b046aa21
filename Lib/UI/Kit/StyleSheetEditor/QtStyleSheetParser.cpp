#include <UI/Kit/StyleSheetEditor/QtStyleSheetParser.h>

#include <UI/Kit/StyleSheetEditor/StyleSheetTokenizer.h>

#include <QLoggingCategory>
#include <QStyle>
#include <QStyleOptionComplex>
#include <QVector>
#include <QWidget>

#include <algorithm>
#include <atomic>

namespace Zelkor::Vx::UI::Kit::QtStyleSheetParser {

namespace {

using StyleSheetTokenizer::Kind;
using StyleSheetTokenizer::Token;

std::atomic<QtMessageHandler> nextHandler{nullptr};
thread_local bool* refused = nullptr; ///< of the verdict that this thread asks for

/// Swallows what Qt says about the sheet, and passes on all else, of this and of other threads.
void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (refused && message.startsWith(QLatin1String("Could not parse stylesheet")))
        *refused = true;
    else if (const QtMessageHandler next = nextHandler; next && !(refused && message.startsWith(QLatin1String("QCss"))))
        next(type, context, message);
}

/// Listens to Qt's warnings, which a logging rule may have switched off.
class Listener
{
public:
    Listener() : category(*QLoggingCategory::defaultCategory()), wasEnabled(category.isWarningEnabled())
    {
        category.setEnabled(QtWarningMsg, true);
        refused = &heard;
        nextHandler = qInstallMessageHandler(HandleMessage);
    }

    ~Listener()
    {
        qInstallMessageHandler(nextHandler);
        refused = nullptr;
        category.setEnabled(QtWarningMsg, wasEnabled);
    }

    bool heard = false;

private:
    Q_DISABLE_COPY(Listener)

    QLoggingCategory& category;
    const bool wasEnabled;
};

// A hit test in the controls of an MDI window asks whether the sheet has a rule for the parts "close-button" and so on,
// and nothing else while there is none: Qt parses the sheet, but draws up no rule, which would load its images.
bool IsAcceptedForWidget(QString sheet)
{
    sheet.replace(QLatin1String("-button"), QLatin1String("-buttox"), Qt::CaseInsensitive);
    QWidget probe;
    probe.setStyleSheet(sheet);
    const QStyleOptionComplex option;
    Listener listener;
    probe.style()->hitTestComplexControl(QStyle::CC_MdiControls, &option, QPoint(), &probe);
    return !listener.heard;
}

/// Where a sheet can be cut behind a rule, and behind the declarations in it.
struct Cut
{
    int position;
    int depth; ///< braces that are open there
};

QVector<Cut> Cuts(const QString& sheet)
{
    QVector<Cut> cuts;
    int depth = 0;
    for (const Token& token : StyleSheetTokenizer::Tokenize(sheet)) {
        const QChar symbol = token.kind == Kind::SYMBOL ? sheet[token.start] : QChar();
        if (symbol == QLatin1Char('{'))
            ++depth;
        else if (symbol == QLatin1Char('}'))
            depth = std::max(0, depth - 1);
        else if (symbol != QLatin1Char(';'))
            continue;
        cuts.append({token.end(), depth});
    }
    return cuts;
}

} // namespace

// For a widget, Qt takes a sheet that it cannot read as declarations alone. A comment sign of HTML, which Qt skips
// between rules, keeps it from that; "@charset" and "@import" keep it from that themselves, and the first has to stand
// at the beginning.
bool IsAccepted(const QString& sheet, StyleSheetScope scope)
{
    const bool beginsWithAt = sheet.startsWith(QLatin1Char('@'));
    return IsAcceptedForWidget(scope == StyleSheetScope::WIDGET || beginsWithAt ? sheet
                                                                                : QLatin1String("<!--") + sheet);
}

// Once Qt refuses the beginning of a sheet, it refuses every longer one, so the first such cut is found by halves.
int FindRefused(const QString& sheet, StyleSheetScope scope)
{
    const QVector<Cut> cuts = Cuts(sheet);
    const auto isAccepted = [&](const Cut& cut) {
        return IsAccepted(sheet.left(cut.position) + QString(cut.depth, QLatin1Char('}')), scope);
    };
    const auto first = std::partition_point(cuts.begin(), cuts.end(), isAccepted);
    int position = first == cuts.begin() ? 0 : (first - 1)->position;
    while (position < sheet.size() && sheet[position].isSpace())
        ++position;
    return position;
}

} // namespace Zelkor::Vx::UI::Kit::QtStyleSheetParser
