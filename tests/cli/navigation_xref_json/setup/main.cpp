void frame()
{
	RePaint();
	Paint(2);
}
