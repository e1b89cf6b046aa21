#pragma once

#include <QLabel>

/// A label for one text that may be too long.
///
/// The text is elided at its end when it does not fit, and is then shown whole as the tool tip; assistive technology
/// always gets it whole. It runs from left to right whatever letters it has. A press on the label can act as a click.
/// A new label shows "ZLabel".
class ZLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString originalText READ originalText WRITE setOriginalText NOTIFY originalTextChanged)
    Q_PROPERTY(bool eliding READ isEliding WRITE setEliding)
    Q_PROPERTY(bool clickable READ isClickable WRITE setClickable)

public:
    explicit ZLabel(QWidget* parent = nullptr);

    /// The whole text, without the direction marks that it is shown with.
    QString originalText() const;

    /// Sets the whole text. Emits `originalTextChanged` unless the label has this text already.
    void setOriginalText(const QString& text);

    /// Whether a text that does not fit is elided; on by default. When off, the label shows its text cut.
    bool isEliding() const { return eliding; }
    void setEliding(bool on);

    /// Whether a press of any mouse button emits `clicked`; on by default.
    bool isClickable() const { return clickable; }
    void setClickable(bool on);

    /// Room for the whole text, also while it is elided.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// A mouse button went down on the clickable label. Comes before the label handles the press itself.
    void clicked();

    /// The whole text is another one now, given without marks.
    void originalTextChanged(QString text);

protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString textThatFits() const;
    QString wholeTextIfElided() const;
    void refreshText();

    QString storedText = QStringLiteral("ZLabel"); ///< whole, with direction marks once it was set
    QString displayed = storedText;                ///< what refreshText() showed last
    bool eliding = true;
    bool clickable = true;
};
