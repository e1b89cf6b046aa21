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
thread_local bool* refused = nullptr; ///< result of the check that runs on this thread

/// Drops the messages of Qt about the sheet and forwards all others, also those of other threads.
void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (refused && message.startsWith(QLatin1String("Could not parse stylesheet")))
        *refused = true;
    else if (const QtMessageHandler next = nextHandler; next && !(refused && message.startsWith(QLatin1String("QCss"))))
        next(type, context, message);
}

/// Intercepts the warnings of Qt, even if a logging rule disables them.
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

// A hit test of the controls of an MDI window makes Qt parse the sheet and search rules for sub-controls such as
// "close-button". Without such rules, Qt creates no render rule, which would load images.
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

/// A place at which a sheet can be truncated: after a rule or a declaration.
struct Cut
{
    int position;
    int depth; ///< number of open braces
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

// For a widget, Qt parses a sheet again as declarations if it cannot parse it as rules. The start of an HTML comment,
// which Qt skips between rules, prevents that. So do "@charset", which must be the first token, and "@import".
bool IsAccepted(const QString& sheet, StyleSheetScope scope)
{
    const bool beginsWithAt = sheet.startsWith(QLatin1Char('@'));
    return IsAcceptedForWidget(scope == StyleSheetScope::WIDGET || beginsWithAt ? sheet
                                                                                : QLatin1String("<!--") + sheet);
}

// If Qt rejects a prefix of a sheet, it rejects every longer one, so a binary search finds the first such prefix.
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
