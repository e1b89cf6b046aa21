#include <Gallery/LevelBallistics.h>

#include <Support/TestCase.h>

#include <cmath>

using Zelkor::Gallery::LevelBallistics;
using namespace std::chrono_literals;

class tst_LevelBallistics : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void risesAtOnceAndFallsSlowly()
    {
        const LevelBallistics::Time start{10s};
        LevelBallistics level;
        QCOMPARE(level.LevelAt(start), 0.0);
        level.TakePeak(-30, start);
        QCOMPARE(level.LevelAt(start), 0.5);
        level.TakePeak(-6, start);
        QCOMPARE(level.LevelAt(start), 0.9);
        // 20 decibels a second; a lower peak does not hold the level up, nor pull it down.
        level.TakePeak(-50, start + 500ms);
        QCOMPARE(level.LevelAt(start + 500ms), 44.0 / 60);
        QCOMPARE(level.LevelAt(start + 1s), 34.0 / 60);
        level.TakePeak(-20, start + 1s);
        QCOMPARE(level.LevelAt(start + 1s), 40.0 / 60);
        QCOMPARE(level.LevelAt(start + 1h), 0.0);
    }

    void badMeasurementsDoNoHarm()
    {
        const LevelBallistics::Time start{10s};
        LevelBallistics level;
        level.TakePeak(std::nan(""), start);
        level.TakePeak(-INFINITY, start);
        QCOMPARE(level.LevelAt(start), 0.0);
        level.TakePeak(INFINITY, start);
        QCOMPARE(level.LevelAt(start), 1.0);
        level.TakePeak(std::nan(""), start);
        // A clock that goes back makes nothing louder.
        level.TakePeak(-60, start - 5s);
        QCOMPARE(level.LevelAt(start - 5s), 1.0);
        QCOMPARE(level.LevelAt(start + 1500ms), 0.5);
    }
};

VX_TEST_MAIN(tst_LevelBallistics)
#include "tst_LevelBallistics.moc"
