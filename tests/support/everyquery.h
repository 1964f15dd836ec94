#pragma once

class JobEditor;

/// Asks the job everything that can be asked, for names that it has and for names that it has not.
void callEveryQuery(JobEditor &job);
