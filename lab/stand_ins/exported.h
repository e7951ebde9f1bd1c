// How the closed libraries of an installation export a function of one number.
#pragma once

#include <windows.h>

#define LAB_EXPORTED extern "C" __declspec(dllexport) INT WINAPI
