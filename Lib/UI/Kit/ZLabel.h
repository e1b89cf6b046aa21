#pragma once

#include <QLabel>

/// A label that elides its text at the end when it does not fit, and then shows all of it as the tool tip.
///
/// Assistive technology gets the whole text. The text is laid out from left to right whatever its script. A new label
/// shows "ZLabel". GUI thread only.
class ZLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString originalText READ originalText WRITE setOriginalText NOTIFY originalTextChanged)
    Q_PROPERTY(bool eliding READ isEliding WRITE setEliding)
    Q_PROPERTY(bool clickable READ isClickable WRITE setClickable)

public:
    explicit ZLabel(QWidget* parent = nullptr);

    /// The whole text, without the control characters that set its direction; "ZLabel" by default.
    QString originalText() const;

    /// Sets the whole text. Emits `originalTextChanged` if it differs.
    void setOriginalText(const QString& text);

    /// Whether a text that does not fit is elided; true by default. If false, it is clipped.
    bool isEliding() const { return eliding; }
    void setEliding(bool on);

    /// Whether a press of any mouse button emits `clicked`; true by default.
    bool isClickable() const { return clickable; }
    void setClickable(bool on);

    /// Returns the size of the whole text, even while it is elided.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted when a mouse button is pressed, before the label handles the event. A slot may delete the label.
    void clicked();

    /// Emitted when the whole text changes; without control characters.
    void originalTextChanged(QString text);

protected:
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int spaceBeside() const;
    QString textThatFits() const;
    QString wholeTextIfElided() const;
    void refreshText();

    QString storedText = QStringLiteral("ZLabel"); ///< whole, with control characters once it was set
    QString displayed = storedText;                ///< last text set by refreshText()
    bool eliding = true;
    bool clickable = true;
};
