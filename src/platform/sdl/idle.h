#pragma once

/// Gives up the processor, for a moment or until something happens: the program has polled an empty queue.
void Idle();
