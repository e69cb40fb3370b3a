#pragma once

// A piece of docs/qml.md, which tests/docs/qml_guideTest.cpp calls.
void prepare_qml();
