#include <UI/Kit/StyleSheetEditor/StyleSheetVocabulary.h>

#include <UI/Kit/StyleSheetEditor/StyleSheetTokenizer.h>

#include <QApplication>
#include <QColor>
#include <QMetaProperty>
#include <QWidget>

#include <algorithm>

namespace Zelkor::Vx::UI::Kit::StyleSheetVocabulary {

namespace {

using StyleSheetTokenizer::Kind;
using StyleSheetTokenizer::Region;
using StyleSheetTokenizer::SyntaxState;
using StyleSheetTokenizer::Token;

const QString PREFIX = QStringLiteral("qproperty-");

// Names that Qt defines.
const char PROPERTIES[] =
    "alternate-background-color background background-attachment background-clip background-color background-image "
    "background-origin background-position background-repeat border border-bottom border-bottom-color "
    "border-bottom-left-radius border-bottom-right-radius border-bottom-style border-bottom-width border-color "
    "border-image border-left border-left-color border-left-style border-left-width border-radius border-right "
    "border-right-color border-right-style border-right-width border-style border-top border-top-color "
    "border-top-left-radius border-top-right-radius border-top-style border-top-width border-width bottom "
    "button-layout color dialogbuttonbox-buttons-have-icons font font-family font-size font-style font-weight "
    "gridline-color height icon-size image image-position left lineedit-password-character margin margin-bottom "
    "margin-left margin-right margin-top max-height max-width messagebox-text-interaction-flags min-height min-width "
    "opacity outline outline-color outline-offset outline-radius outline-style padding padding-bottom padding-left "
    "padding-right padding-top paint-alternating-row-colors-for-empty-area position right "
    "selection-background-color selection-color show-decoration-selected spacing subcontrol-origin "
    "subcontrol-position text-align text-decoration titlebar-show-tooltips-on-buttons top widget-animation-duration "
    "width";
const char STATES[] =
    "active adjoins-item alternate bottom checked closable closed default disabled editable edit-focus enabled "
    "exclusive first flat floatable focus has-children has-siblings horizontal hover indeterminate last left "
    "maximized middle minimized movable next-selected no-frame non-exclusive off on only-one open pressed "
    "previous-selected read-only right selected top unchecked vertical window";
const char PARTS[] =
    "add-line add-page branch chunk close-button corner down-arrow down-button drop-down float-button groove handle "
    "icon indicator item left-arrow left-corner menu-arrow menu-button menu-indicator pane right-arrow right-corner "
    "scroller section separator sub-line sub-page tab tab-bar tear tearoff text title up-arrow up-button";
const char VALUES[] =
    "auto bold border bottom center content dashed dot-dash dotted double false fixed groove inset italic left "
    "line-through "
    "margin middle no-repeat none normal oblique outset overline padding palette( qconicalgradient( qlineargradient( "
    "qradialgradient( relative repeat repeat-x repeat-y rgb( rgba( ridge right scroll solid static stretch "
    "top true underline url( absolute";

QStringList Words(const char* words)
{
    return QString::fromLatin1(words).split(QLatin1Char(' '));
}

QStringList Sorted(QStringList names)
{
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    return names;
}

QString InSheet(const QMetaObject* meta)
{
    return QString::fromLatin1(meta->className()).replace(QLatin1String("::"), QLatin1String("--"));
}

bool IsSymbol(const QString& text, const Token& token, char symbol)
{
    return token.kind == Kind::SYMBOL && text[token.start] == QLatin1Char(symbol);
}

void AddClass(const QMetaObject* meta, Names& names)
{
    QStringList& settables = names.settables[InSheet(meta)];
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QString name = QString::fromLatin1(property.name());
        names.attributes.append(name);
        if (property.isWritable() && property.isDesignable())
            settables.append(PREFIX + name);
    }
    settables = Sorted(settables);
}

QStringList Settables(const QString& className, const Names& names)
{
    if (names.settables.contains(className))
        return names.settables[className];
    QStringList all;
    for (const QStringList& settables : names.settables)
        all += settables;
    return Sorted(all);
}

// Returns the names that can follow the tokens in a selector.
QStringList InSelector(const QString& text, const QVector<Token>& tokens, const SyntaxState& at, const Names& names)
{
    if (at.inBrackets)
        return names.attributes;
    const int last = tokens.size() - 1;
    if (last < 0 || !IsSymbol(text, tokens[last], ':'))
        return last >= 0 && IsSymbol(text, tokens[last], '#') ? names.objects : names.classes;
    const bool isPart = last > 0 && IsSymbol(text, tokens[last - 1], ':');
    return Words(isPart ? PARTS : STATES);
}

} // namespace

Names Collect(const QWidget* except)
{
    Names names;
    for (const QWidget* widget : QApplication::allWidgets()) {
        if (except && (widget == except || except->isAncestorOf(widget)))
            continue;
        if (!widget->objectName().isEmpty())
            names.objects.append(widget->objectName());
        for (const QByteArray& property : widget->dynamicPropertyNames()) {
            if (!property.startsWith('_'))
                names.attributes.append(QString::fromLatin1(property));
        }
        const QMetaObject* meta = widget->metaObject();
        for (; meta != &QObject::staticMetaObject && !names.settables.contains(InSheet(meta));
             meta = meta->superClass())
            AddClass(meta, names);
    }
    names.classes = Sorted(names.settables.keys());
    names.objects = Sorted(names.objects);
    names.attributes = Sorted(names.attributes);
    return names;
}

int PrefixLength(const QString& before)
{
    int length = 0;
    while (length < before.size() && StyleSheetTokenizer::IsNameLetter(before[before.size() - 1 - length]))
        ++length;
    return length;
}

QStringList Completions(const QString& before, const Names& names, bool declarationsOnly)
{
    const QString text = before.left(before.size() - PrefixLength(before));
    const QVector<Token> tokens = StyleSheetTokenizer::Tokenize(text);
    if (!tokens.isEmpty() && !tokens.last().isClosed)
        return {};
    SyntaxState at;
    if (declarationsOnly)
        at.region = Region::PROPERTY;
    QString className; // last class in the selector of the declarations
    for (const Token& token : tokens) {
        if (at.region == Region::SELECTOR && token.kind == Kind::WORD) {
            const QString word = text.mid(token.start, token.length);
            if (names.settables.contains(word))
                className = word;
        } else if (IsSymbol(text, token, '}') || IsSymbol(text, token, ',')) {
            className.clear();
        }
        at.advance(text, token);
    }
    switch (at.region) {
    case Region::SELECTOR:
        return InSelector(text, tokens, at, names);
    case Region::PROPERTY:
        return Sorted(Words(PROPERTIES) + Settables(className, names));
    case Region::VALUE:
        return Sorted(Words(VALUES) + QColor::colorNames());
    }
    return {};
}

} // namespace Zelkor::Vx::UI::Kit::StyleSheetVocabulary
