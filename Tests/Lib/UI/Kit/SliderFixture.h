#pragma once

#include <UI/Kit/ZSlider.h>
#include <UI/Kit/ZSliderThumb.h>

#include <Support/Input.h>

#include <QtTest>

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

inline void Click(ZSliderThumb* thumb)
{
    QTest::mouseClick(thumb, Qt::LeftButton);
}

inline void Press(ZSliderThumb* thumb)
{
    QTest::mousePress(thumb, Qt::LeftButton);
}

inline void Move(ZSliderThumb* thumb, int pixels)
{
    Support::MoveMouse(thumb, thumb->rect().center() + QPoint(pixels, 0));
}

inline void Release(ZSliderThumb* thumb)
{
    QTest::mouseRelease(thumb, Qt::LeftButton);
}
