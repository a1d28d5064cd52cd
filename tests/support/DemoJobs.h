#pragma once

/// Makes "job" (open) and "other" the only jobs of the host, each with fonts, special symbols and
/// special texts of its own. The job "other" has no standard font.
void openDemoJobs();
