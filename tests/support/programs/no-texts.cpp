// Takes the place of the compiled-in resource "texts": there is none.
int qInitResources_texts();
int qInitResources_texts() { return 1; }
