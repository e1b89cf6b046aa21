#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace Zelkor::Gallery {

/// The page that the gallery opens with: what there is to see, and a button that starts the recorder.
class StartPage : public QWidget
{
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

Q_SIGNALS:
    void RecorderRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    QLabel* title;
    QLabel* description;
    QPushButton* recorderButton;
    QLabel* hint;
};

} // namespace Zelkor::Gallery
