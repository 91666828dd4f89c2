#ifndef TOOLS_OFFSCREEN_H_
#define TOOLS_OFFSCREEN_H_

namespace survey {

// Lets the QApplication that is made next work unseen, on the toolkit's platform without a screen,
// which then does not say each time what it cannot do. To be called once.
void UseOffscreenPlatform();

}  // namespace survey

#endif  // TOOLS_OFFSCREEN_H_
