#pragma once

#include <tavlon/framework.h>
#include <tavlon/records.h>

using MinuteArray = CArray<tagmyMinuteData, tagmyMinuteData&>;

/// The chart's slots, 0 to 239; the array always holds all of them.
constexpr int k_nMinuteSlots = 240;

/// Slot of a time HHMMSS; every number has one. Times up to 09:31 fall into slot 0, the midday break into
/// 120, times from 14:59 on into 239; no time falls into slot 1.
int TimeToSlot(unsigned int nTime);

/// All slots empty, each with the time that an empty slot shows: 09:31 on for 122 slots, then 13:00 on.
void ResetSlots(MinuteArray& arrMinute);

/// Whether a minute may be stored: key and time set, price at least 0.0001, volume not negative, both
/// finite.
bool IsMinuteValid(const tagmyMinuteData& data);

/// Up to the slot after nLastIndex, a slot without price repeats the price before it, the first ones
/// fPreClose.
void FillGaps(MinuteArray& arrMinute, int nLastIndex, float fPreClose);
