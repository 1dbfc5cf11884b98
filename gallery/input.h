/// Mouse and keyboard as the system sees them from the outside.
#pragma once

#include <tavlon/framework.h>

namespace gallery {

void MoveMouse(CPoint ptScreen);
void PressLeft();
void ReleaseLeft();
void ClickLeft();
void ClickRight();
void TypeKey(unsigned char nKey);

}  // namespace gallery
