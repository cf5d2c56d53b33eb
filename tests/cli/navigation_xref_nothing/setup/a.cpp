Paint();
