#pragma once
// Makes every write past `bytes` bytes of a file fail for the life of the
// object: a full disk in the middle of a save, as a test can have it.
#include <csignal>
#include <sys/resource.h>

class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &previous_);
        rlimit small = previous_;
        small.rlim_cur = bytes;
        previousHandler_ = std::signal(SIGXFSZ, SIG_IGN);
        active_ = setrlimit(RLIMIT_FSIZE, &small) == 0;
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &previous_);
        std::signal(SIGXFSZ, previousHandler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

    bool active() const { return active_; }

private:
    rlimit previous_{};
    void (*previousHandler_)(int) = nullptr;
    bool active_ = false;
};
