// What assistive programs are told of the controls that the toolkit cannot describe by itself.
#pragma once

namespace vantor {

// Once, before the first of the controls is asked for; further calls change nothing.
void describeControls();

}  // namespace vantor
