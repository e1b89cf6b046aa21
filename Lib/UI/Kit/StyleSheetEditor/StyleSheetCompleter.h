#pragma once

#include <QObject>

class QCompleter;
class QPlainTextEdit;
class QStringListModel;
class QWidget;

namespace Zelkor::Vx::UI::Kit {

/// Offers names while a person types a style sheet: after two letters of a name, or when asked to. Return or Tab takes
/// the chosen one, Escape none.
class StyleSheetCompleter : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the editor. Widgets within `except` are not looked at for names.
    StyleSheetCompleter(QPlainTextEdit* editor, const QWidget* except);

    /// Whether the sheet is declarations alone, without a selector and braces; it is not by default.
    void setDeclarationsAlone(bool on) { declarationsAlone = on; }

    /// Offers what can stand at the cursor, however much of it was typed.
    void open();

    bool isOpen() const;

    /// What is offered; empty when nothing is.
    QStringList offered() const;

    /// What decides on the names: the text before the cursor from the beginning of its rule.
    QString context() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();
    void show(int fewestLetters);
    void insert(const QString& name);

    QPlainTextEdit* editor;
    const QWidget* except;
    QCompleter* completer = nullptr;
    QStringListModel* names = nullptr;
    bool declarationsAlone = false;
    bool typing = false; ///< a letter came, and the cursor has not moved behind it yet
};

} // namespace Zelkor::Vx::UI::Kit
