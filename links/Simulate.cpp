#include "links/Simulate.h"

#include "comndata/ComnData.h"
#include "links/CellPart.h"
#include "log/Clock.h"

#include <cmath>
#include <cstdio>

namespace tessary
{

namespace
{

constexpr int USUAL_PERIOD = 100; ///< ms: every tick

double CellNumberOr0(int cell)
{
    return cell < 0 ? 0.0 : Get_dData(cell, nullptr, 0);
}

LinkValue TimeOfDay(int part)
{
    const int hms[] = {LocalTime.tm_hour, LocalTime.tm_min, LocalTime.tm_sec};
    if (part != PART_TEXT)
        return {static_cast<double>(CalcTime(hms)), "", false};
    char text[48];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", hms[0], hms[1], hms[2]);
    return {0.0, text, true};
}

} // namespace

Simulate::Simulate(const LinkConnection& connection, Looks& looks, Looks::Who who)
    : Link(connection, looks, who)
{
    for (const LinkPoint& point : this->connection().points) {
        Inputs& inputs = inputs_.emplace_back();
        inputs.of = CellNumber(point.of);
        for (const auto& [cell, factor] : point.by)
            inputs.by.emplace_back(CellNumber(cell), factor);
    }
    for (std::size_t i = 0; i < cells().size(); ++i)
        waves_.emplace_back(pointOf(cells()[i]), static_cast<unsigned>(i));
}

void Simulate::tick(double now)
{
    const bool first = begin_ < 0.0;
    if (first) {
        begin_ = now;
        setState(LinkState::Connected, Cause::None, "");
    }
    const double seconds = now - begin_;
    const double elapsed = seconds - last_;
    const int period = connection().period ? connection().period : USUAL_PERIOD;
    // A tick that comes a little early is still that of the period.
    if (!first && elapsed < period / 1000.0 - 0.05)
        return;
    last_ = seconds;
    for (std::size_t i = 0; i < cells().size(); ++i) {
        const LinkCell& cell = cells()[i];
        const LinkPoint& point = pointOf(cell);
        if (point.wave == WAVE_CONSTANT && !first && point.noise == 0.0)
            continue; // it begins so; an operator may change it
        WritePart(cell.cell, point.part, valueOf(i, seconds, elapsed), looks());
        ++counts_.updates;
    }
}

LinkValue Simulate::valueOf(std::size_t index, double seconds, double elapsed)
{
    const LinkPoint& point = pointOf(cells()[index]);
    if (point.wave == WAVE_CLOCK)
        return TimeOfDay(point.part);
    return {ToCell(point, numberOf(index, seconds, elapsed) + waves_[index].noise(point)), "", false};
}

double Simulate::numberOf(std::size_t index, double seconds, double elapsed)
{
    const LinkCell& cell = cells()[index];
    const LinkPoint& point = pointOf(cell);
    const Inputs& inputs = inputs_[cell.point];
    WalkingWave& wave = waves_[index];
    switch (point.wave) {
    case WAVE_RANDOM:
    case WAVE_WALK:
        return wave.step(point, seconds);
    case WAVE_FOLLOW:
        return wave.follow(point, CellNumberOr0(inputs.of), elapsed);
    case WAVE_FLOW: {
        double change = point.rate;
        for (const auto& [input, factor] : inputs.by)
            change += factor * CellNumberOr0(input);
        return wave.flow(point, change, elapsed);
    }
    case WAVE_ABOVE:
        return CellNumberOr0(inputs.of) > point.limit ? 1.0 : 0.0;
    case WAVE_BELOW:
        return CellNumberOr0(inputs.of) < point.limit ? 1.0 : 0.0;
    default: { // several cells go one after the other
        const double behind = WavePeriod(point) * cell.element / point.count;
        return WaveAt(point, seconds + behind);
    }
    }
}

} // namespace tessary
