// What the functions that a page calls work on: one simulation, which lives as long as the page,
// and one text in each direction.
#pragma once

#include "app/simulation.h"

#include <string>

// A function that the page can call by that name.
#define EXPORT(name) __attribute__((export_name(#name)))

namespace selvane::web {

const Simulation& PageSimulation();

// Keeps the text for the page to take; returns its size in bytes.
int Output(std::string text);

// The first so many bytes of what the page has put into the input.
std::string InputText(int bytes);

} // namespace selvane::web
