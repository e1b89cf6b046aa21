#include "StateExpression.h"

#include <Catalogue/Catalogue.h>

#include <QDir>
#include <QFile>

#include <algorithm>

// Q_INIT_RESOURCE() works outside of namespaces only.
static void RegisterSources()
{
    Q_INIT_RESOURCE(CatalogueSources);
}

namespace Zelkor::Catalogue {

namespace {

constexpr int CREATE_ELEMENT = 5;
constexpr int STATES_ELEMENT = 6;
constexpr int LONGEST_INLINED = 16; ///< lines; longer functions are kept as they are

/// Functions that adapt a widget to changes of the gallery's scene. Code to copy does not need them.
const QStringList GALLERY_ONLY{"AdaptToSurroundings", "AlignAtStart"};

const QString PREFIX = QStringLiteral(":/CatalogueSources/");

QString ReadSource(const QString& name)
{
    QFile file(PREFIX + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// How a state is made: an expression for a function that creates the widget, and one for a function that changes it.
struct Recipe
{
    Tokens create;
    Tokens apply;
};

bool IsCallOf(const Tokens& tokens, const QString& name)
{
    return tokens.size() > 2 && tokens[0].text == name && (tokens[1].text == "(" || tokens[1].text == "<");
}

// Returns the arguments of a call, behind template arguments if any.
QVector<Tokens> ArgumentsOf(const Tokens& call)
{
    const int open = call[1].text == "<" ? ClosingBracket(call, 1) + 1 : 1;
    return SplitAtCommas(Inside(call, open));
}

// Whether an argument can replace a parameter wherever that is used.
bool IsPlainArgument(const Tokens& argument)
{
    if (argument[0].text == "[")
        return true;
    for (const Token& token : argument) {
        // A call would be repeated, and could not be captured.
        if (token.text == "{" || token.text == "?" || token.text == "+" || token.text == "->")
            return false;
    }
    return argument.size() == 1 || CountOf(argument, "EntryText") <= 1;
}

/// Builds the statements of a state.
class Builder
{
public:
    explicit Builder(const Scope& scope) : scope(scope) {}

    Recipe Resolve(const Tokens& state) const
    {
        if (IsCallOf(state, "MakeState"))
            return {{}, ArgumentsOf(state).value(1)};
        if (IsCallOf(state, "MadeState"))
            return {ArgumentsOf(state).value(1), {}};
        const auto function =
            FunctionOf(state[1].text == "<" ? state.mid(0, ClosingBracket(state, 1) + 1) : state.mid(0, 1));
        if (!function)
            return {};
        Tokens body = function->body;
        const auto arguments = ArgumentsOf(state);
        for (int i = 0; i < function->parameters.size(); ++i) {
            const Parameter& parameter = function->parameters[i];
            body = Replace(body, parameter.name, i < arguments.size() ? arguments[i] : parameter.value);
        }
        const Tokens result = body.mid(1, body.size() - 2); // between "return" and ";"
        if (result[0].text != "{")
            return Resolve(result);
        const auto elements = SplitAtCommas(Inside(result, 0));
        return {elements.value(2), elements.value(1)};
    }

    Tokens Create(const Tokens& expression, const QString& preferredName)
    {
        Tokens body = Body(expression, Tokenize("parent"));
        while (body.size() > 2 && body[0].text == "return" && FunctionOf(body.mid(1, 1)))
            body = Instantiate(*FunctionOf(body.mid(1, 1)), body.mid(1, body.size() - 2));
        const auto statements = SplitStatements(body);
        if (statements.isEmpty())
            return {};
        const Tokens last = statements.last();
        if (last.size() == 3) { // return name;
            variable = last[1].text;
            return body.mid(0, body.size() - 3);
        }
        if (last.size() < 4 || last[0].text != "return" || last[1].text != "new")
            return {};
        const QString type = last[2].text;
        variable = !preferredName.isEmpty() ? preferredName : type[0].toLower() + type.mid(1);
        return body.mid(0, body.size() - last.size()) +
               Tokenize(last[0].space + "auto* " + variable + " = " + Join(last.mid(1)));
    }

    Tokens Apply(const Tokens& expression) const
    {
        return expression.isEmpty() ? Tokens() : Body(expression, Tokenize('*' + variable));
    }

    // Returns the name that a function gives its only parameter.
    QString ParameterOf(const Tokens& expression) const
    {
        const auto function = FunctionOf(expression);
        const QString name = function && !function->parameters.isEmpty() ? function->parameters[0].name : QString();
        return name == "widget" ? QString() : name;
    }

    Tokens Example(const Tokens& function) const { return Body(function, Tokenize("parent")); }

    // Removes calls of setters that a later call of the same setter replaces.
    Tokens WithoutReplacedSetters(const Tokens& body) const
    {
        const auto setterOf = [this](const Tokens& statement) {
            const bool isCall = statement.size() > 4 && statement[0].text == variable && statement[1].text == "->";
            const QString name = isCall ? statement[2].text : QString();
            return name.startsWith("set", Qt::CaseInsensitive) && name != "setProperty" ? name : QString();
        };
        const auto statements = SplitStatements(body);
        Tokens result;
        for (int i = 0; i < statements.size(); ++i) {
            const QString setter = setterOf(statements[i]);
            const bool isReplaced =
                !setter.isEmpty() && std::any_of(statements.begin() + i + 1, statements.end(),
                                                 [&](const Tokens& later) { return setterOf(later) == setter; });
            if (!isReplaced)
                result += statements[i];
        }
        return result;
    }

    // Inlines calls that are statements or initialise a variable, of functions that are used once.
    Tokens Inline(Tokens body, bool lambdasOnly = false) const
    {
        for (bool hasChanged = true; hasChanged;) {
            hasChanged = false;
            Tokens result;
            for (const Tokens& statement : SplitStatements(body)) {
                if (GALLERY_ONLY.contains(statement[0].text))
                    continue;
                const bool isKept = lambdasOnly && statement[0].text != "[";
                const Tokens inlined = isKept ? Tokens() : Inlined(statement, body);
                hasChanged |= !inlined.isEmpty();
                result += inlined.isEmpty() ? statement : inlined;
            }
            body = result;
        }
        return body;
    }

private:
    // Returns a function by its name, with template arguments, or of a lambda.
    std::optional<Function> FunctionOf(const Tokens& expression) const
    {
        if (expression.isEmpty())
            return {};
        if (expression[0].text == "[")
            return ParseFunction(expression);
        Tokens definition;
        for (const Definition& local : scope.Locals()) {
            if (local.name == expression[0].text)
                definition = local.value;
        }
        const Definition* global = scope.Find(expression[0].text);
        if (definition.isEmpty() && global && global->kind == Definition::FUNCTION)
            definition = global->tokens;
        auto function = ParseFunction(definition);
        if (function && expression.size() > 1 && expression[1].text == "<") {
            const auto arguments = SplitAtCommas(Inside(expression, 1));
            for (int i = 0; i < arguments.size(); ++i)
                function->body = Replace(function->body, function->templateParameters.value(i), arguments[i]);
        }
        return function;
    }

    // Returns the body of a function whose parameters are the arguments of a call. Arguments that cannot replace their
    // parameter become variables.
    static Tokens Instantiate(const Function& function, const Tokens& call)
    {
        return WithArguments(function, ArgumentsOf(call));
    }

    static Tokens WithArguments(const Function& function, const QVector<Tokens>& arguments)
    {
        Tokens body = Dedent(function.body);
        QString variables;
        for (int i = 0; i < function.parameters.size(); ++i) {
            const Parameter& parameter = function.parameters[i];
            const Tokens argument = i < arguments.size() ? arguments[i] : parameter.value;
            if (argument.isEmpty() || parameter.name.isEmpty())
                continue;
            if (IsPlainArgument(argument) || (CountOf(body, parameter.name) == 1 && argument[0].text != "{")) {
                body = Replace(body, parameter.name, argument);
            } else {
                const QString type = Join(parameter.type).remove(" &").remove('&');
                variables += type + ' ' + parameter.name + " = " + Join(argument) + ";\n";
            }
        }
        return variables.isEmpty() ? body : Tokenize(variables + Join(body));
    }

    Tokens Body(const Tokens& expression, const Tokens& argument) const
    {
        auto function = FunctionOf(expression);
        if (!function)
            return {};
        // Before the names of its parameters are replaced, which lambdas may use for their own.
        function->body = Inline(function->body, true);
        const bool isPointer = !function->parameters.isEmpty() && CountText(function->parameters[0].type, "*") > 0;
        return WithArguments(*function, {isPointer && argument[0].text == "*" ? argument.mid(1) : argument});
    }

    static int CountText(const Tokens& tokens, const QString& text)
    {
        int count = 0;
        for (const Token& token : tokens)
            count += token.text == text;
        return count;
    }

    // Returns what replaces a statement of `body`, empty to keep it.
    Tokens Inlined(const Tokens& statement, const Tokens& body) const
    {
        const int call = CallOf(statement);
        if (call < 0)
            return {};
        const Tokens callee =
            statement[call].text == "[" ? statement.mid(call, statement.size() - 1 - call) : statement.mid(call, 1);
        const auto function = FunctionOf(callee);
        const bool isLambda = callee[0].text == "[";
        if (!function || (!isLambda && CountOf(body, callee[0].text) != 1) ||
            Join(function->body).count('\n') > LONGEST_INLINED)
            return {};
        const Tokens arguments = statement.mid(call, statement.size() - 1 - call);
        Tokens inlined = isLambda ? WithArguments(*function, SplitAtCommas(LastArguments(arguments)))
                                  : Instantiate(*function, arguments);
        if (inlined.isEmpty())
            return {};
        const int returns = CountOf(inlined, "return");
        if (call == 0 && returns > 0)
            return {};
        if (call > 0) { // auto* name = Function(...);
            const Tokens last = SplitStatements(inlined).last();
            if (returns != 1 || last.size() != 3 || last[0].text != "return")
                return {};
            inlined = Replace(inlined.mid(0, inlined.size() - 3), last[1].text, statement.mid(call - 2, 1));
        }
        inlined[0].space = statement[0].space.isEmpty() ? QString() : QStringLiteral("\n");
        return inlined;
    }

    // Returns where the call of a statement starts, if that is all of it or initialises a pointer; else -1.
    int CallOf(const Tokens& statement) const
    {
        if (statement.last().text != ";" || statement.size() < 4)
            return -1;
        int call = 0;
        for (int i = 2; i < statement.size() && i < 6; ++i) {
            if (statement[i].text == "=" && statement[i - 2].text == "*")
                call = i + 1;
        }
        if (statement[call].text == "[" && call == 0)
            return ClosingBracket(statement, 0) < statement.size() ? 0 : -1;
        const bool isWhole =
            statement[call + 1].text == "(" && ClosingBracket(statement, call + 1) == statement.size() - 2;
        return isWhole && scope.Find(statement[call].text) ? call : -1;
    }

    // Returns the arguments of a lambda that is called at once.
    static Tokens LastArguments(const Tokens& call)
    {
        for (int i = call.size() - 1; i >= 0; --i) {
            if (call[i].text == "(" && ClosingBracket(call, i) == call.size() - 1)
                return Inside(call, i);
        }
        return {};
    }

    const Scope& scope;
    QString variable;
};

} // namespace

Scope::Scope(const Entry& entry)
{
    RegisterSources();
    for (const char* shared :
         {"Examples/Support/WidgetTexts.cpp", "Examples/Support/Artwork.h", "Examples/Support/Artwork.cpp",
          "Catalogue/SamplePictures.h", "Catalogue/SamplePictures.cpp", "Catalogue/Catalogue.cpp"})
        Take(ParseSource(ReadSource(shared)));
    const QString className = '"' + entry.className + '"';
    QString function;
    for (const QString& name : QDir(PREFIX + "Catalogue/Entries").entryList()) {
        const QString path = "Catalogue/Entries/" + name;
        const QString code = ReadSource(path);
        const SourceFile file = ParseSource(code.contains(className) ? code : QString());
        for (const Definition& definition : file.definitions) {
            if (definition.kind != Definition::FUNCTION || Join(definition.type) != "Entry")
                continue;
            const Tokens body = ParseFunction(definition.tokens)->body;
            const Tokens last = SplitStatements(body).last();
            if (last.size() < 3 || last[2].text != className)
                continue;
            fileName = path;
            function = definition.name;
            locals = ParseLocals(body);
            elements = SplitAtCommas(Inside(last, 1));
        }
        if (fileName != path)
            continue;
        Take(file);
        const Tokens all = Tokenize(code);
        for (int i = 0; i + 8 < all.size(); ++i) {
            // WithExample(SomeEntry(), Function)
            if (all[i].text == "WithExample" && all[i + 2].text == function)
                example = SplitAtCommas(Inside(all, i + 1)).value(1);
        }
    }
}

void Scope::Take(const SourceFile& file)
{
    includes += file.includes;
    usings += file.usings;
    definitions += file.definitions;
}

const Definition* Scope::Find(const QString& name) const
{
    // Backwards, because the entry's own file is the last one.
    const auto found = std::find_if(definitions.crbegin(), definitions.crend(),
                                    [&](const Definition& definition) { return definition.name == name; });
    return found == definitions.crend() ? nullptr : &*found;
}

Tokens StatementsOf(const Scope& scope, int state)
{
    const auto states = scope.Elements().size() > STATES_ELEMENT
                            ? SplitAtCommas(Inside(scope.Elements()[STATES_ELEMENT], 0))
                            : QVector<Tokens>();
    if (state < 0 || state >= states.size())
        return {};
    Tokens expression = states[state];
    // Twice, because a variable may contain an alias.
    for (int pass = 0; pass < 2; ++pass) {
        for (const Definition& local : scope.Locals()) {
            if (local.value[0].text != "[")
                expression = Replace(expression, local.name, local.value);
        }
    }
    Builder builder(scope);
    if (!scope.Example().isEmpty())
        return builder.Inline(builder.Example(scope.Example()));
    const Recipe recipe = builder.Resolve(expression);
    const Tokens create = recipe.create.isEmpty() ? scope.Elements()[CREATE_ELEMENT] : recipe.create;
    QString name;
    for (const Tokens& other : states)
        name = name.isEmpty() ? builder.ParameterOf(builder.Resolve(other).apply) : name;
    Tokens statements = builder.Create(create, name);
    Tokens applied = builder.Apply(recipe.apply);
    if (!applied.isEmpty())
        applied[0].space = QStringLiteral("\n");
    return builder.WithoutReplacedSetters(builder.Inline(statements + applied));
}

} // namespace Zelkor::Catalogue
