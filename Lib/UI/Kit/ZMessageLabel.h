#pragma once

#include <QLabel>

/// One line that says something. It takes whatever width is left, elides what does not fit, and shows it whole as the
/// tool tip. It begins at the side where the window's rows begin, whatever letters it has.
class ZMessageLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ZMessageLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText() const;
};
