#include "tests/monkey/recorded_output.h"

#include "cli/standard_output.h"

namespace {

QByteArray &recorded()
{
    static QByteArray bytes;
    return bytes;
}

} // namespace

RecordedOutput::RecordedOutput()
{
    recorded().clear();
}

RecordedOutput::~RecordedOutput()
{
    recorded().clear();
}

QByteArray RecordedOutput::bytes() const
{
    return recorded();
}

StandardOutput::StandardOutput() = default;

void StandardOutput::write(const char *bytes, int size)
{
    recorded().append(bytes, size);
}

void StandardOutput::write(char byte, int count)
{
    recorded().append(count, byte);
}

ExitStatus StandardOutput::finish()
{
    return exitDone;
}
