#pragma once
// Today and now come through this seam so tests can fix the date.
#include <QDateTime>

class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
    QDate today() const { return now().date(); }
};

class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

class FixedClock final : public Clock {
public:
    explicit FixedClock(QDateTime at) : at_(std::move(at)) {}
    QDateTime now() const override { return at_; }
    void set(QDateTime at) { at_ = std::move(at); }

private:
    QDateTime at_;
};

// The clock of the running program, for screens until a test gives theirs.
inline const Clock& SystemTime()
{
    static const SystemClock clock;
    return clock;
}
