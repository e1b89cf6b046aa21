#pragma once

#include <UI/Kit/ZSlider.h>
#include <UI/Kit/ZSliderThumb.h>

/// Has values from 0 to 100 and 2 pixels per value.
struct Trimmer : ZSlider
{
    Trimmer()
    {
        setOrientation(Qt::Horizontal);
        setRange(0, 100);
        resize(212, 30);
    }

    ZSliderThumb* add(const QString& name, int value)
    {
        ZSliderThumb* thumb = addThumb(name);
        thumb->setValue(value);
        return thumb;
    }
};
