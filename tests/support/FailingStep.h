#pragma once

/// The last steps of a save: its bytes are brought to the disk, and the new file is put in the place of the
/// old.
enum class SaveStep { Sync, Rename };

/// While it lives, that step fails in this program with `error`, as of `errno`.
class FailingStep
{
public:
    FailingStep(SaveStep step, int error);
    ~FailingStep();
    FailingStep(const FailingStep&) = delete;
    FailingStep& operator=(const FailingStep&) = delete;

private:
    int& m_error;
};
