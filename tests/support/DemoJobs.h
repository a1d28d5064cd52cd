#pragma once

/// Makes "job" (open) and "other" the only jobs of the host, each with fonts, special and user
/// symbols, special texts and attributes of its own.
void openDemoJobs();
