// Replaces the compiled-in resource "texts" with an empty one.
int qInitResources_texts();
int qInitResources_texts() { return 1; }
