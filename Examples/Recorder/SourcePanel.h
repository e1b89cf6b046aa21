#pragma once

#include <QWidget>

class QComboBox;
class QLabel;

namespace Zelkor::Recorder {

class RecorderModel;

/// Chooses device, mode and frame rate of a model, which must outlive the panel.
class SourcePanel : public QWidget
{
    Q_OBJECT

public:
    explicit SourcePanel(RecorderModel* model, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Field
    {
        QLabel* label;
        QComboBox* combo;
    };

    Field AddField(const char* name);
    void Refresh();
    void Retranslate();

    RecorderModel* model;
    Field device;
    Field mode;
    Field frameRate;
};

} // namespace Zelkor::Recorder
