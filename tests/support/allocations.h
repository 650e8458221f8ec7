#pragma once

/// Lets the request number `number` from now on for a picture's plane find no memory; 0: none.
void FailPlane(int number);
