#pragma once

class Runner;

// The groups of figures; each adds its own to the runner.
void addStripFigures(Runner& runner);
void addIncomingFigures(Runner& runner);
void addRecordFigures(Runner& runner);
void addDialogFigures(Runner& runner);
void addKeyFigures(Runner& runner);
void addProcessFigures(Runner& runner);
void addGrowthFigures(Runner& runner);
void addBoardFigures(Runner& runner);
