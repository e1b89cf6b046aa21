#include <UI/Common/TextMarks.h>

namespace Zelkor::Vx::UI::Common {

QString Embed(const QString& text)
{
    return LEFT_TO_RIGHT_EMBEDDING + text + POP_DIRECTIONAL_FORMATTING;
}

QString WithoutEmbedding(QString text)
{
    if (text.startsWith(LEFT_TO_RIGHT_EMBEDDING)) {
        text.remove(LEFT_TO_RIGHT_EMBEDDING);
        text.remove(POP_DIRECTIONAL_FORMATTING);
    }
    return text;
}

QString WithoutMnemonic(const QString& text)
{
    QString plain;
    plain.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && ++i == text.size())
            break;
        plain += text[i];
    }
    return plain;
}

} // namespace Zelkor::Vx::UI::Common
