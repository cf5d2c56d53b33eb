  Paint();
